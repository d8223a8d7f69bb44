#include <ZKStrings/tools/exchange/InlineCodes.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <map>
#include <utility>

namespace zk::tools {

namespace {

using Kind = TextPiece::Kind;
using Pieces = std::vector<TextPiece>;

constexpr std::string_view kOpeningTag = "<b>";
constexpr std::string_view kClosingTag = "</b>";
constexpr std::string_view kStar = "*";

/// More pairs within each other than in any text are no pairs, but a mistake.
constexpr std::size_t kDeepestPair = 8;

/// The marks and words of `text`, in which there are no placeholders. The kind of a star is left open.
void addMarksAndWords(std::string_view text, Pieces& pieces) {
  while (!text.empty()) {
    TextPiece piece = {Kind::words, text};
    if (text.starts_with(kOpeningTag)) {
      piece = {Kind::opening, text.substr(0, kOpeningTag.size())};
    } else if (text.starts_with(kClosingTag)) {
      piece = {Kind::closing, text.substr(0, kClosingTag.size())};
    } else if (text.starts_with(kStar)) {
      piece = {Kind::placeholder, text.substr(0, kStar.size())};
    } else {
      piece.text = text.substr(0, text.find_first_of("<*", 1));
    }
    text.remove_prefix(piece.text.size());
    const bool continuesWords = piece.kind == Kind::words && !pieces.empty() &&
                                pieces.back().kind == Kind::words &&
                                pieces.back().text.end() == piece.text.begin();
    if (continuesWords) {
      pieces.back().text = {pieces.back().text.begin(), piece.text.end()};
    } else {
      pieces.push_back(piece);
    }
  }
}

/// Makes pairs of the stars. Gives whether all marks pair up within each other; otherwise they are not
/// finished.
bool pairUp(Pieces& pieces) {
  std::vector<std::string_view> open;
  for (TextPiece& piece : pieces) {
    const bool isOpenStar = !open.empty() && open.back() == kStar;
    if (piece.text == kStar) piece.kind = isOpenStar ? Kind::closing : Kind::opening;
    if (piece.kind == Kind::opening) open.push_back(piece.text);
    if (open.size() > kDeepestPair) return false;
    if (piece.kind != Kind::closing) continue;
    if (open.empty() || closingOf(open.back()) != piece.text) return false;
    open.pop_back();
  }
  return open.empty();
}

}  // namespace

std::vector<TextPiece> piecesOf(std::string_view text) {
  Pieces pieces;
  std::size_t at = 0;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (!use.isRight) continue;
    addMarksAndWords(text.substr(at, use.offset - at), pieces);
    pieces.push_back({Kind::placeholder, use.spelled});
    at = use.offset + use.spelled.size();
  }
  addMarksAndWords(text.substr(at), pieces);
  if (pairUp(pieces)) return pieces;
  for (TextPiece& piece : pieces) {
    if (piece.kind != Kind::words) piece.kind = Kind::placeholder;
  }
  return pieces;
}

std::string_view closingOf(std::string_view text) {
  return text == kStar ? kStar : kClosingTag;
}

std::vector<std::size_t> codeNumbers(const Pieces& target, const Pieces& source) {
  std::map<std::pair<std::string_view, Kind>, std::vector<std::size_t>> free;  // the lowest at the end
  std::size_t last = 0;
  for (const TextPiece& piece : source) {
    if (piece.kind != Kind::words) free[{piece.text, piece.kind}].push_back(++last);
  }
  for (auto& [code, numbers] : free) std::reverse(numbers.begin(), numbers.end());
  std::vector<std::size_t> result;
  for (const TextPiece& piece : target) {
    if (piece.kind == Kind::words) {
      result.push_back(0);
      continue;
    }
    std::vector<std::size_t>& numbers = free[{piece.text, piece.kind}];
    result.push_back(numbers.empty() ? ++last : numbers.back());
    if (!numbers.empty()) numbers.pop_back();
  }
  return result;
}

}  // namespace zk::tools
