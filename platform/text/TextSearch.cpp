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
  char32_t value;  // kFirstByteValue and more for a byte that is not UTF-8
  std::uint8_t combiningClass;
  std::size_t begin, end;  // the bytes of the text between two borders, which all units between them share
};

/// Appends the code points that `codePoint` decomposes to.
void appendDecomposed(std::vector<Unit>& units, const CodePoint& codePoint) {
  const auto append = [&](char32_t value, std::uint8_t combiningClass) {
    units.push_back({value, combiningClass, 0, 0});
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
  std::size_t firstUnit = 0;
  std::size_t begin = 0;
  bool isAfterByte = false;  // a byte that is not UTF-8 has borders on both sides
  const auto endSegment = [&](std::size_t end) {
    for (; firstUnit < units.size(); ++firstUnit) {
      units[firstUnit].begin = begin;
      units[firstUnit].end = end;
    }
    begin = end;
  };
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (isAfterByte || isBorderBefore(next)) endSegment(at);
    appendDecomposed(units, next);
    isAfterByte = !next.value;
    at += next.bytes.size();
  }
  endSegment(text.size());
  reorderMarks(units);
  return units;
}

/// The bytes [begin, end) of a text.
struct Occurrence {
  std::size_t begin;
  std::size_t end;
};

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

/// Finds `target` by canonical equivalence.
std::vector<Occurrence> canonicalOccurrences(std::string_view text, std::string_view target) {
  const std::vector<Unit> units = decomposed(text);
  const std::vector<Unit> wanted = decomposed(target);
  const std::vector<std::size_t> repeated = repeatedPrefixes(wanted);
  const auto isBorder = [&](std::size_t at) {
    return at == 0 || at == units.size() || units[at].begin != units[at - 1].begin;
  };
  std::vector<Occurrence> found;
  std::size_t same = 0;
  for (std::size_t at = 0; at < units.size() && !wanted.empty();) {
    const char32_t value = units[at++].value;
    while (same > 0 && wanted[same].value != value) same = repeated[same - 1];
    if (wanted[same].value == value) ++same;
    if (same < wanted.size()) continue;
    const std::size_t begin = at - same;
    const bool isWhole = isBorder(begin) && isBorder(at);
    if (isWhole) found.push_back({units[begin].begin, units[at - 1].end});
    same = isWhole ? 0 : repeated[same - 1];
  }
  return found;
}

/// Whether `target` can be found by comparing bytes: no character but itself is equivalent to one of its characters.
bool isPlain(std::string_view target) {
  // The Kelvin sign, the Greek question mark and the Greek varia decompose to these, and nothing else to ASCII.
  constexpr std::size_t kLongest = 64;  // it is compared at each place of a text
  return !target.empty() && target.size() <= kLongest && isAsciiWithout(target, {'K', ';', '`'});
}

/// Finds a plain `target`: the same places as `canonicalOccurrences`, faster.
std::vector<Occurrence> plainOccurrences(std::string_view text, std::string_view target) {
  std::vector<Occurrence> found;
  for (std::size_t at = text.find(target); at != text.npos; at = text.find(target, at)) {
    const std::size_t end = at + target.size();
    const bool isWhole = hasBorderBefore(text.substr(end));
    if (isWhole) found.push_back({at, end});
    at = isWhole ? end : at + 1;
  }
  return found;
}

}  // namespace

bool internal::isBorderBeforeNonAscii(std::string_view text) {
  return isBorderBefore(firstCodePoint(text));
}

// Not by ICU's normalisation, whose work grows with the square of the number of marks on one letter.
std::string canonicalForm(std::string_view text) {
  if (isAsciiWithout(text, {})) return std::string(text);
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
  const auto found = isPlain(target) ? plainOccurrences(text, target) : canonicalOccurrences(text, target);
  if (found.empty()) return;
  std::string result;
  result.reserve(text.size() + found.size() * replacement.size());
  std::size_t done = 0;
  for (const Occurrence& occurrence : found) {
    result.append(text, done, occurrence.begin - done).append(replacement);
    done = occurrence.end;
  }
  text = result.append(text, done);
}

}  // namespace zk
