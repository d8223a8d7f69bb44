#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextPieces.h>

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

namespace {

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
