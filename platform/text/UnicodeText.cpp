#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/GraphemeClusters.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <new>

#include <unicode/casemap.h>
#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace zk {

namespace {

#pragma GCC diagnostic ignored "-Wsign-conversion"  // within the library's macros

/// The code point at `at`, behind which `at` moves; negative for a byte that is not UTF-8.
UChar32 nextCodePoint(std::string_view text, std::size_t& at) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // within the library's macro
  UChar32 value = 0;
  U8_NEXT(text.data(), at, text.size(), value);
  return value;
#pragma GCC diagnostic pop
}

bool isAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

/// One code point after the other: without regard to a language, none depends on its neighbours.
void appendUpperCased(std::string& text, std::string_view codePoint) {
  if (isAscii(codePoint[0])) {
    const char letter = codePoint[0];
    text += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    return;
  }
  char capitals[16];  // the longest, of U+0390 and others, has six bytes
  UErrorCode status = U_ZERO_ERROR;
  const std::int32_t size =
      icu::CaseMap::utf8ToUpper("", 0, codePoint.data(), static_cast<std::int32_t>(codePoint.size()),
                                capitals, sizeof(capitals), nullptr, status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  text.append(capitals, static_cast<std::size_t>(size));
}

}  // namespace

CodePoint firstCodePoint(std::string_view text) {
  std::size_t length = 0;
  const UChar32 value = nextCodePoint(text, length);
  if (value < 0) return {std::nullopt, text.substr(0, 1)};
  return {static_cast<char32_t>(value), text.substr(0, length)};
}

void appendCodePoint(std::string& text, char32_t codePoint) {
  if (codePoint > 0x10FFFF || U_IS_SURROGATE(codePoint)) return;
  char bytes[U8_MAX_LENGTH];
  std::int32_t length = 0;
  U8_APPEND_UNSAFE(bytes, length, static_cast<UChar32>(codePoint));
  text.append(bytes, static_cast<std::size_t>(length));
}

bool isLetterMarkOrDigit(char32_t codePoint) {
  return (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_ND_MASK)) != 0;
}

bool isDecimalDigit(char32_t codePoint) {
  return u_charType(static_cast<UChar32>(codePoint)) == U_DECIMAL_DIGIT_NUMBER;
}

bool isUtf8(std::string_view bytes) {
  for (std::size_t at = 0; (at = findNonAscii(bytes, at)) < bytes.size();) {
    while (at < bytes.size() && !isAscii(bytes[at])) {
      if (nextCodePoint(bytes, at) < 0) return false;
    }
  }
  return true;
}

std::string_view firstTwoClusters(std::string_view text) {
  std::size_t size = 0;
  for (int i = 0; i < 2 && size < text.size(); ++i) size += firstClusterSize(text.substr(size));
  return text.substr(0, size);
}

std::size_t findCharacter(std::string_view text, char wanted) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = firstClusterSize(text.substr(at));
    if (size == 1 && text[at] == wanted) return at;
    at += size;
  }
  return std::string_view::npos;
}

std::string upperCased(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (next.value) {
      appendUpperCased(result, next.bytes);
    } else {
      result += next.bytes;
    }
    at += next.bytes.size();
  }
  return result;
}

}  // namespace zk
