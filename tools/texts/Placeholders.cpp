#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

namespace {

/// Whether `c` is a letter or digit of any script. All bytes outside ASCII pass; no argument has a name with one.
bool isLetterOrDigit(char c) {
  return isAsciiLetterOrDigit(c) || static_cast<unsigned char>(c) >= 0x80;
}

/// The first run of ASCII letters and digits in `text`.
std::string_view nameIn(std::string_view text) {
  const auto* const begin = std::find_if(text.begin(), text.end(), isAsciiLetterOrDigit);
  const auto* const end = std::find_if_not(begin, text.end(), isAsciiLetterOrDigit);
  return {begin, end};
}

/// A sign of placeholders, and the full-width and small characters that look like it.
struct Sign {
  std::string_view plain;
  std::string_view lookAlikes[2];

  /// The size of the sign or of one like it at the beginning of `text`; 0 if there is none.
  [[nodiscard]] std::size_t sizeAt(std::string_view text) const {
    if (text.starts_with(plain)) return plain.size();
    const auto* const found =
        std::find_if(std::begin(lookAlikes), std::end(lookAlikes),
                     [&](std::string_view lookAlike) { return text.starts_with(lookAlike); });
    return found == std::end(lookAlikes) ? 0 : found->size();
  }
};

constexpr Sign kPercent = {"%", {"％", "﹪"}};
constexpr Sign kOpening = {"{", {"｛", "﹛"}};
constexpr Sign kClosing = {"}", {"｝", "﹜"}};

/// The beginning of `text` up to the next sign or line break.
std::string_view upToSign(std::string_view text) {
  constexpr std::string_view kFirstBytes = "%{}\n\xEF";  // the look-alikes all begin with the byte EF
  std::size_t at = text.find_first_of(kFirstBytes);
  const auto isEnd = [&] {
    const std::string_view rest = text.substr(at);
    return rest[0] == '\n' || kPercent.sizeAt(rest) + kOpening.sizeAt(rest) + kClosing.sizeAt(rest) > 0;
  };
  while (at < text.size() && !isEnd()) at = text.find_first_of(kFirstBytes, at + 1);
  return text.substr(0, at);
}

/// The placeholder, right or wrong, with which `text` begins.
std::optional<PlaceholderUse> useAtBegin(std::string_view text) {
  const std::size_t percent = kPercent.sizeAt(text);
  const std::size_t brace = kOpening.sizeAt(text.substr(percent));
  const std::string_view rest = text.substr(percent + brace);
  if (brace == 0) {
    const bool hasName = percent > 0 && !rest.empty() && isAsciiLetterOrDigit(rest[0]);
    if (!hasName) return std::nullopt;
    const std::string_view name = nameIn(rest);
    return PlaceholderUse{0, text.substr(0, percent + name.size()), name, false, false};
  }
  const std::string_view inside = upToSign(rest);
  const std::size_t closing = kClosing.sizeAt(rest.substr(inside.size()));
  const bool isRight = percent == 1 && brace == 1 && closing == 1 && !inside.empty() &&
                       std::all_of(inside.begin(), inside.end(), isLetterOrDigit);
  const std::string_view name = isRight ? inside : nameIn(inside);
  const std::size_t insideSize = closing > 0 ? inside.size() + closing : inside.find(name) + name.size();
  return PlaceholderUse{0, text.substr(0, percent + brace + insideSize), name, true, isRight};
}

using Kind = TextPiece::Kind;
using Pieces = std::vector<TextPiece>;

constexpr std::string_view kOpeningTag = "<b>";
constexpr std::string_view kClosingTag = "</b>";
constexpr std::string_view kStar = "*";

/// Deeper nesting than in any real text is a mistake.
constexpr std::size_t kDeepestPair = 8;

/// The length of the mark at the start of `text`; 0 if there is none.
std::size_t markLength(std::string_view text) {
  for (const std::string_view mark : {kOpeningTag, kClosingTag, kStar}) {
    if (text.starts_with(mark)) return mark.size();
  }
  return 0;
}

/// Adds the pieces of `text`, which has no placeholders. All marks are added as placeholders.
void addWordsAndMarks(std::string_view text, Pieces& pieces) {
  while (!text.empty()) {
    std::size_t end = 0;
    while (end < text.size() && markLength(text.substr(end)) == 0) ++end;
    if (end > 0) pieces.push_back({Kind::words, text.substr(0, end)});
    text.remove_prefix(end);
    if (const std::size_t mark = markLength(text); mark > 0)
      pieces.push_back({Kind::placeholder, text.substr(0, mark)});
    text.remove_prefix(markLength(text));
  }
}

/// Turns the marks into openings and closings. Returns whether all of them could be paired.
bool pairMarks(Pieces& pieces) {
  std::vector<std::string_view> expected;  // the closings of the open pairs
  for (TextPiece& piece : pieces) {
    if (!expected.empty() && piece.text == expected.back()) {
      piece.kind = Kind::closing;
      expected.pop_back();
    } else if (piece.text == kOpeningTag || piece.text == kStar) {
      piece.kind = Kind::opening;
      expected.push_back(closingOf(piece.text));
      if (expected.size() > kDeepestPair) return false;
    } else if (piece.text == kClosingTag) {
      return false;
    }
  }
  return expected.empty();
}

}  // namespace

std::vector<std::string_view> placeholderNames(std::string_view text) {
  std::vector<std::string_view> names;
  for (std::size_t at = text.find("%{"); at != std::string_view::npos; at = text.find("%{", at)) {
    at += 2;
    const std::size_t end = text.find('}', at);
    if (end == std::string_view::npos) break;
    names.push_back(text.substr(at, end - at));
  }
  return names;
}

std::vector<PlaceholderUse> placeholderUses(std::string_view text) {
  std::vector<PlaceholderUse> uses;
  for (std::size_t at = 0; at < text.size();) {
    std::optional<PlaceholderUse> use = useAtBegin(text.substr(at));
    if (!use) {
      ++at;
      continue;
    }
    use->offset = at;
    at += use->spelled.size();
    uses.push_back(*use);
  }
  return uses;
}

std::vector<TextPiece> piecesOf(std::string_view text) {
  Pieces pieces;
  std::size_t at = 0;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (!use.isRight) continue;
    addWordsAndMarks(text.substr(at, use.offset - at), pieces);
    pieces.push_back({Kind::placeholder, use.spelled});
    at = use.offset + use.spelled.size();
  }
  addWordsAndMarks(text.substr(at), pieces);
  Pieces paired = pieces;
  return pairMarks(paired) ? paired : pieces;
}

std::string_view closingOf(std::string_view text) {
  return text == kStar ? kStar : kClosingTag;
}

std::vector<std::size_t> codeNumbers(const Pieces& target, const Pieces& source) {
  std::multimap<std::pair<std::string_view, Kind>, std::size_t> free;  // the numbers of `source`, by code
  std::size_t last = 0;
  for (const TextPiece& piece : source) {
    if (piece.kind != Kind::words) free.emplace(std::pair(piece.text, piece.kind), ++last);
  }
  std::vector<std::size_t> numbers;
  for (const TextPiece& piece : target) {
    const auto [first, end] = free.equal_range({piece.text, piece.kind});
    const bool isWords = piece.kind == Kind::words;
    numbers.push_back(isWords ? 0 : first == end ? ++last : first->second);
    if (first != end) free.erase(first);
  }
  return numbers;
}

}  // namespace zk::tools
