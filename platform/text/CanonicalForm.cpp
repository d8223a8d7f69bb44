#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/CanonicalForm.h>
#include <ZKStrings/platform/text/ICUMemory.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <algorithm>
#include <new>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace zk {

namespace {

constexpr char32_t kFirstByteValue = 0x110000;

/// The canonical decompositions and compositions of Unicode.
const icu::Normalizer2& normalForms() {
  static const icu::Normalizer2* const forms = [] {
    requireMemoryForICU();
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const composition = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) throw std::bad_alloc();
    return composition;
  }();
  return *forms;
}

/// Whether no canonical equivalence reaches across the place before `codePoint`.
bool isBorderBefore(const CodePoint& codePoint) {
  return !codePoint.value || normalForms().hasBoundaryBefore(static_cast<UChar32>(*codePoint.value));
}

/// Appends the code points that `codePoint` decomposes to.
void appendDecomposed(std::vector<CanonicalUnit>& units, const CodePoint& codePoint) {
  const auto append = [&](char32_t value, std::uint8_t combiningClass) {
    units.push_back({value, combiningClass, 0, 0});
  };
  if (!codePoint.value) return append(kFirstByteValue + static_cast<unsigned char>(codePoint.bytes[0]), 0);
  if (*codePoint.value < 0x80) return append(*codePoint.value, 0);
  const auto whole = static_cast<UChar32>(*codePoint.value);
  icu::UnicodeString parts;  // few enough for its own memory
  if (!normalForms().getDecomposition(whole, parts)) {
    return append(*codePoint.value, normalForms().getCombiningClass(whole));
  }
  for (std::int32_t i = 0; i < parts.length(); i = parts.moveIndex32(i, 1)) {
    const UChar32 part = parts.char32At(i);
    append(static_cast<char32_t>(part), normalForms().getCombiningClass(part));
  }
}

/// Puts marks that follow one another into their canonical order.
void reorderMarks(std::vector<CanonicalUnit>& units) {
  const auto isMark = [](const CanonicalUnit& unit) { return unit.combiningClass != 0; };
  for (auto begin = units.begin(); begin != units.end();) {
    begin = std::find_if(begin, units.end(), isMark);
    const auto end = std::find_if_not(begin, units.end(), isMark);
    std::stable_sort(begin, end, [](const CanonicalUnit& a, const CanonicalUnit& b) {
      return a.combiningClass < b.combiningClass;
    });
    begin = end;
  }
}

}  // namespace

bool isBorderBeforeNonAscii(std::string_view text) {
  return isBorderBefore(firstCodePoint(text));
}

std::vector<CanonicalUnit> decomposed(std::string_view text) {
  std::vector<CanonicalUnit> units;
  std::size_t firstUnit = 0;
  std::size_t begin = 0;
  bool isBehindByte = false;  // a byte that is not UTF-8 has borders on both sides
  const auto endSegment = [&](std::size_t end) {
    for (; firstUnit < units.size(); ++firstUnit) {
      units[firstUnit].begin = begin;
      units[firstUnit].end = end;
    }
    begin = end;
  };
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (isBehindByte || isBorderBefore(next)) endSegment(at);
    appendDecomposed(units, next);
    isBehindByte = !next.value;
    at += next.bytes.size();
  }
  endSegment(text.size());
  reorderMarks(units);
  return units;
}

// Not by the library's own normalisation, whose work grows by the square of the marks on one letter.
std::string canonicalForm(std::string_view text) {
  if (findNonAscii(text, 0) >= text.size()) return std::string(text);
  std::string form;
  for (const CanonicalUnit& unit : decomposed(text)) {
    if (unit.value < kFirstByteValue) {
      appendCodePoint(form, unit.value);
    } else {
      form += static_cast<char>(unit.value - kFirstByteValue);
    }
  }
  return form;
}

}  // namespace zk
