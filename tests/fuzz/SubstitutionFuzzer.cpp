#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

/// A text and up to seven pairs of name and value, of any bytes, against a plain search: normalise, cut, compare.

namespace zk::fuzzing {

namespace {

/// What stands between two borders across which nothing is equivalent: as it is, and normalised by ICU.
struct Segment {
  std::string bytes;
  std::string normalised;
};

/// ICU's composition, whose borders it tells. A byte that is not UTF-8 is a segment.
std::vector<Segment> segmentsOf(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  static const icu::Normalizer2& forms = *icu::Normalizer2::getNFCInstance(status);
  std::vector<Segment> segments;
  bool isBehindByte = true;
  for (; !text.empty(); text.remove_prefix(firstCodePoint(text).bytes.size())) {
    const CodePoint next = firstCodePoint(text);
    if (isBehindByte || !next.value || forms.hasBoundaryBefore(static_cast<UChar32>(*next.value)))
      segments.emplace_back();
    segments.back().bytes += next.bytes;
    isBehindByte = !next.value;
  }
  for (Segment& segment : segments) {
    segment.normalised = segment.bytes;
    if (!isUtf8(segment.bytes)) continue;
    segment.normalised.clear();
    forms.normalize(icu::UnicodeString::fromUTF8(segment.bytes), status).toUTF8String(segment.normalised);
  }
  return segments;
}

bool areEquivalent(const std::vector<Segment>& one, const std::vector<Segment>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const Segment& a, const Segment& b) { return a.normalised == b.normalised; });
}

std::string replacedPlainly(const std::string& text, const std::string& target, const std::string& value) {
  const std::vector<Segment> sought = segmentsOf(target);
  const std::vector<Segment> segments = segmentsOf(text);
  std::string result;
  for (auto at = segments.begin(); at != segments.end();) {
    const auto end = at + std::min(segments.end() - at, static_cast<std::ptrdiff_t>(sought.size()));
    const bool isFound = areEquivalent({at, end}, sought);
    result += isFound ? value : at->bytes;
    at = isFound ? end : at + 1;
  }
  return result;
}

}  // namespace

void test(std::string_view input) {
  constexpr std::size_t kMostPairs = 7;
  constexpr std::size_t kLongest = 1U << 14U;
  const std::vector<std::string> parts = partsOf(input, 1 + 2 * kMostPairs);
  std::vector<std::pair<std::string, std::string>> pairs;
  std::string expected = parts[0];
  std::size_t work = input.size();
  for (std::size_t i = 1; i + 1 < parts.size(); i += 2) {
    const bool isKnown = std::any_of(pairs.begin(), pairs.end(), [&](const auto& pair) {
      return areEquivalent(segmentsOf(pair.first), segmentsOf(parts[i]));
    });
    if (isKnown) continue;
    pairs.emplace_back(parts[i], parts[i + 1]);
    expected = replacedPlainly(expected, "%{" + parts[i] + "}", parts[i + 1]);
    if (expected.size() > kLongest) return;  // each pair may multiply the text
    work += expected.size();
  }
  std::string filled;
  {
    const TimeLimit limit(work);
    filled = applySubstitutions(parts[0], pairs);
  }
  require(filled == expected, "filled in is\n" + filled + "\nand not\n" + expected);
}

}  // namespace zk::fuzzing
