#include <ZKStrings/platform/system/ThreadPointer.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include <unicode/casemap.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/udata.h>
#include <unicode/uloc.h>
#include <unicode/utf8.h>

namespace zk {

namespace {

// These warnings are about ICU's macros.
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"

/// This thread's iterator over user-perceived characters. Opening one takes microseconds, so it is kept.
UBreakIterator* characterIterator() {
  static const ThreadPointer& kept =
      *new ThreadPointer([](void* open) { ubrk_close(static_cast<UBreakIterator*>(open)); });
  if (void* const open = kept.get()) return static_cast<UBreakIterator*>(open);
  internal::requireMemoryForICU();
  // Not by ubrk_open, which asks for the default locale: ICU deadlocks if memory runs out there.
  UErrorCode status = U_ZERO_ERROR;
  UDataMemory* const rules = udata_open(U_ICUDATA_NAME "-brkitr", "brk", "char", &status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  const auto* const bytes = static_cast<const std::uint8_t*>(udata_getMemory(rules));
  UBreakIterator* const opened = ubrk_openBinaryRules(bytes, INT32_MAX, nullptr, 0, &status);
  udata_close(rules);  // ICU keeps its data until the process ends
  if (U_SUCCESS(status) && kept.set(opened)) return opened;
  ubrk_close(opened);
  throw std::bad_alloc();
}

/// Whether the first byte of `text` is certainly a user-perceived character: ASCII before ASCII or at the end, but not CR.
bool beginsWithPlainAscii(std::string_view text) {
  const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
  return isAscii(text[0]) && text[0] != '\r' && (text.size() == 1 || isAscii(text[1]));
}

// The iterator reads UTF-16, so this converts the beginning of the text, or more of it if the character is longer.
std::size_t clusterSizeByICU(std::string_view text) {
  UBreakIterator* const iterator = characterIterator();
  for (std::size_t most = 32;; most *= 4) {
    std::u16string units;
    CodePoint next{0, {}};
    for (std::size_t at = 0; at < text.size() && units.size() < most; at += next.bytes.size()) {
      next = firstCodePoint(text.substr(at));
      if (!next.value) break;
      if (*next.value > 0xFFFF) units += U16_LEAD(*next.value);
      units += *next.value > 0xFFFF ? U16_TRAIL(*next.value) : static_cast<char16_t>(*next.value);
    }
    if (units.empty()) return 1;
    UErrorCode status = U_ZERO_ERROR;
    ubrk_setText(iterator, units.data(), static_cast<std::int32_t>(units.size()), &status);
    const std::int32_t border = U_SUCCESS(status) ? ubrk_next(iterator) : UBRK_DONE;
    if (border == UBRK_DONE) throw std::bad_alloc();
    const auto end = static_cast<std::size_t>(border);
    if (end == units.size() && end >= most) continue;
    std::size_t size = 0;
    for (std::size_t unit = 0; unit < end; size += next.bytes.size()) {
      next = firstCodePoint(text.substr(size));
      unit += next.bytes.size() == 4 ? 2 : 1;
    }
    return size;
  }
}

}  // namespace

void internal::requireMemoryForICU() {
  constexpr std::size_t kPlenty = std::size_t{64} * 1024;
  // From malloc, as ICU's is. Volatile, because compilers otherwise remove an allocation that is only freed.
  void* const volatile memory = std::malloc(kPlenty);
  if (!memory) throw std::bad_alloc();
  std::free(memory);
}

std::size_t internal::firstClusterSize(std::string_view text) {
  return beginsWithPlainAscii(text) ? 1 : clusterSizeByICU(text);
}

std::string_view firstTwoCharacters(std::string_view text) {
  std::size_t size = 0;
  for (int i = 0; i < 2 && size < text.size(); ++i) size += internal::firstClusterSize(text.substr(size));
  return text.substr(0, size);
}

CodePoint firstCodePoint(std::string_view text) {
  UChar32 value = 0;
  std::size_t length = 0;
  U8_NEXT(text.data(), length, text.size(), value);  // NOLINT(bugprone-inc-dec-in-conditions)
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
  for (std::size_t at = 0; at < bytes.size();) {
    UChar32 value = 0;
    if (at + 8 <= bytes.size() &&
        (internal::load<std::uint64_t>(bytes.data() + at) & internal::kHighBits) == 0) {
      at += 8;
    } else {
      U8_NEXT(bytes.data(), at, bytes.size(), value);  // NOLINT(bugprone-inc-dec-in-conditions)
    }
    if (value < 0) return false;
  }
  return true;
}

std::size_t findCharacter(std::string_view text, char wanted) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = internal::firstClusterSize(text.substr(at));
    if (size == 1 && text[at] == wanted) return at;
    at += size;
  }
  return std::string_view::npos;
}

bool isRightToLeft(std::string_view code) {
  internal::requireMemoryForICU();
  return uloc_isRightToLeft(std::string(code).c_str()) != 0;
}

std::string upperCased(std::string_view text) {
  if (text.size() > INT32_MAX / 3) throw std::bad_alloc();
  std::string capitals(text.size() * 3, '\0');  // the longest result, that of U+0390 and others
  UErrorCode status = U_ZERO_ERROR;
  const std::int32_t size =
      icu::CaseMap::utf8ToUpper("", 0, text.data(), static_cast<std::int32_t>(text.size()), capitals.data(),
                                static_cast<std::int32_t>(capitals.size()), nullptr, status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  capitals.resize(static_cast<std::size_t>(size));
  return capitals;
}

}  // namespace zk
