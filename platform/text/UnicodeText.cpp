#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <memory>

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
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

/// The borders between the user-perceived characters of a text.
class CharacterBorders {
 public:
  explicit CharacterBorders(std::string_view text) : size_(text.size()) {
    utext_openUTF8(&text_, text.data(), static_cast<std::int64_t>(text.size()), &status_);
    iterator_ = ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status_);
    ubrk_setUText(iterator_, &text_, &status_);
  }
  CharacterBorders(const CharacterBorders&) = delete;
  CharacterBorders& operator=(const CharacterBorders&) = delete;
  ~CharacterBorders() {
    ubrk_close(iterator_);
    utext_close(&text_);
  }

  /// The first border behind the byte `at`; the end of the text when there is none.
  [[nodiscard]] std::size_t after(std::size_t at) const {
    const std::int32_t border = ubrk_following(iterator_, static_cast<std::int32_t>(at));
    return border == UBRK_DONE ? size_ : static_cast<std::size_t>(border);
  }
  [[nodiscard]] bool isAt(std::size_t at) const {
    return ubrk_isBoundary(iterator_, static_cast<std::int32_t>(at)) != 0;
  }

 private:
  std::size_t size_;
  UErrorCode status_ = U_ZERO_ERROR;
  UText text_ = UTEXT_INITIALIZER;
  UBreakIterator* iterator_;
};

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

std::string_view firstTwoGraphemeClusters(std::string_view text) {
  const CharacterBorders borders(text);
  return text.substr(0, borders.after(borders.after(0)));
}

std::size_t findCharacter(std::string_view text, char wanted) {
  const auto isAsciiAt = [&](std::size_t at) { return at >= text.size() || isAscii(text[at]); };
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string_view::npos; ++at) {
    const bool isAlone = (at == 0 || isAsciiAt(at - 1)) && isAsciiAt(at + 1);
    if (isAlone) return at;
    const CharacterBorders borders(text);
    if (borders.isAt(at) && borders.isAt(at + 1)) return at;
  }
  return std::string_view::npos;
}

std::string upperCased(std::string_view text) {
  std::string result;
  if (findNonAscii(text, 0) == text.size()) {
    result = text;
    for (char& letter : result) {
      if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return result;
  }
  const auto appendUpper = [&](std::string_view valid) {
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8ToUpper("", 0, icu::StringPiece(valid.data(), static_cast<std::int32_t>(valid.size())),
                              sink, nullptr, status);
  };
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (!next.value) {
      appendUpper(text.substr(begin, at - begin));
      result += next.bytes;
      begin = at + 1;
    }
    at += next.bytes.size();
  }
  appendUpper(text.substr(begin));
  return result;
}

}  // namespace zk
