#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace zk {

namespace {

constexpr char32_t kFirstByteValue = 0x110000;

/// Unicode's canonical decompositions.
const icu::Normalizer2& decompositions() {
  static const icu::Normalizer2* const decompositions = [] {
    internal::requireMemoryForICU();
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const form = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) throw std::bad_alloc();
    return form;
  }();
  return *decompositions;
}

/// Whether `codePoint` does not combine with what is before it.
bool isBorderBefore(const CodePoint& codePoint) {
  return !codePoint.value || decompositions().hasBoundaryBefore(static_cast<UChar32>(*codePoint.value));
}

/// A code point of a canonically decomposed text.
struct Unit {
  char32_t value;  // `kFirstByteValue` or more for a byte that is not UTF-8
  std::uint8_t combiningClass;
  std::size_t segment;  // the place in the text of the last border at or before the unit
};

/// Appends the code points that `codePoint` decomposes to.
void appendDecomposed(std::vector<Unit>& units, const CodePoint& codePoint, std::size_t segment) {
  const auto append = [&](char32_t value, std::uint8_t combiningClass) {
    units.push_back({value, combiningClass, segment});
  };
  if (!codePoint.value) return append(kFirstByteValue + static_cast<unsigned char>(codePoint.bytes[0]), 0);
  if (*codePoint.value < 0x80) return append(*codePoint.value, 0);
  const auto whole = static_cast<UChar32>(*codePoint.value);
  icu::UnicodeString parts;  // few enough to fit without an allocation
  if (!decompositions().getDecomposition(whole, parts)) {
    return append(*codePoint.value, decompositions().getCombiningClass(whole));
  }
  for (std::int32_t i = 0; i < parts.length(); i = parts.moveIndex32(i, 1)) {
    const UChar32 part = parts.char32At(i);
    append(static_cast<char32_t>(part), decompositions().getCombiningClass(part));
  }
}

/// Puts consecutive marks into their canonical order.
void reorderMarks(std::vector<Unit>& units) {
  const auto isMark = [](const Unit& unit) { return unit.combiningClass != 0; };
  for (auto begin = units.begin(); begin != units.end();) {
    begin = std::find_if(begin, units.end(), isMark);
    const auto end = std::find_if_not(begin, units.end(), isMark);
    std::stable_sort(begin, end,
                     [](const Unit& a, const Unit& b) { return a.combiningClass < b.combiningClass; });
    begin = end;
  }
}

/// The canonical decomposition of `text`.
std::vector<Unit> decomposed(std::string_view text) {
  std::vector<Unit> units;
  std::size_t segment = 0;
  bool isAfterByte = false;  // a byte that is not UTF-8 has borders on both sides
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (isAfterByte || isBorderBefore(next)) segment = at;
    appendDecomposed(units, next, segment);
    isAfterByte = !next.value;
    at += next.bytes.size();
  }
  reorderMarks(units);
  return units;
}

/// For each prefix of `target`, the length of the longest shorter prefix that is also its suffix: where the search by
/// Knuth, Morris and Pratt continues if the next unit differs.
std::vector<std::size_t> repeatedPrefixes(const std::vector<Unit>& target) {
  std::vector<std::size_t> lengths(target.size());
  std::size_t length = 0;
  for (std::size_t i = 1; i < target.size(); ++i) {
    while (length > 0 && target[length].value != target[i].value) length = lengths[length - 1];
    if (target[length].value == target[i].value) ++length;
    lengths[i] = length;
  }
  return lengths;
}

}  // namespace

bool internal::isBorderBeforeNonAscii(std::string_view text) {
  return isBorderBefore(firstCodePoint(text));
}

// Not by ICU's normalisation, whose work grows with the square of the number of marks on one letter.
std::string canonicalForm(std::string_view text) {
  if (isAsciiWithout<>(text)) return std::string(text);
  std::string form;
  for (const Unit& unit : decomposed(text)) {
    if (unit.value < kFirstByteValue) {
      appendCodePoint(form, unit.value);
    } else {
      form += static_cast<char>(unit.value - kFirstByteValue);
    }
  }
  return form;
}

void replaceOccurrences(std::string& text, std::string_view target, std::string_view replacement) {
  const std::vector<Unit> units = decomposed(text);
  const std::vector<Unit> wanted = decomposed(target);
  const std::vector<std::size_t> repeated = repeatedPrefixes(wanted);
  const auto isBorder = [&](std::size_t at) {
    return at == 0 || at == units.size() || units[at].segment != units[at - 1].segment;
  };
  std::string result;
  std::size_t done = 0;
  std::size_t same = 0;
  for (std::size_t at = 0; at < units.size() && !wanted.empty();) {
    const char32_t value = units[at++].value;
    while (same > 0 && wanted[same].value != value) same = repeated[same - 1];
    if (wanted[same].value == value) ++same;
    if (same < wanted.size()) continue;
    const std::size_t begin = at - same;
    const bool isWhole = isBorder(begin) && isBorder(at);
    same = isWhole ? 0 : repeated[same - 1];
    if (!isWhole) continue;
    result.append(text, done, units[begin].segment - done).append(replacement);
    done = at < units.size() ? units[at].segment : text.size();
  }
  text = result.append(text, done);
}

}  // namespace zk
