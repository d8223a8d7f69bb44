#include <ZKStrings/tools/adoption/PositionalText.h>

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kDigits = "0123456789";
/// A space is no flag here, though C has it: "100 % de" is a text, and no number.
constexpr std::string_view kFlags = "-+#0'";
constexpr std::string_view kLengths = "hlqLztj";
constexpr std::string_view kConversions = "@dDiuUxXoOfFeEgGaAcCsSp";

/// Takes the longest beginning of `rest` that has characters of `set` alone off it.
std::string_view take(std::string_view& rest, std::string_view set) {
  const std::string_view taken = rest.substr(0, rest.find_first_not_of(set));
  rest.remove_prefix(taken.size());
  return taken;
}

/// Takes a width or precision off `rest`: digits, or a star for an argument that tells it.
bool takeSize(std::string_view& rest, FormatPiece& piece) {
  if (!rest.starts_with('*')) return !take(rest, kDigits).empty();
  rest.remove_prefix(1);
  ++piece.sizes;
  return true;
}

/// The number that `digits` spell; 0 for one beyond all sense.
std::size_t numberOf(std::string_view digits) {
  if (digits.size() > 3) return 0;
  std::size_t number = 0;
  for (const char digit : digits) number = number * 10 + static_cast<std::size_t>(digit - '0');
  return number;
}

/// The placeholder at the beginning of `text`, a percent sign; its argument is 0 when it is that of its
/// place. Plain text when it is none.
FormatPiece placeholderAt(std::string_view text) {
  const FormatPiece plain{"%"};
  if (text.starts_with("%%")) return {"%%"};
  std::string_view rest = text.substr(1);
  FormatPiece piece;
  const std::string_view beforeNumber = rest;
  const std::string_view digits = take(rest, kDigits);
  if (!digits.empty() && rest.starts_with('$')) {
    piece.argument = numberOf(digits);
    if (piece.argument == 0) return plain;
    rest.remove_prefix(1);
  } else {
    rest = beforeNumber;
  }
  if (rest.starts_with("#@")) {
    const std::size_t end = rest.find('@', 2);
    if (end == rest.npos) return plain;
    piece.variable = rest.substr(2, end - 2);
    rest.remove_prefix(end);
  } else {
    piece.isFormatted = !take(rest, kFlags).empty();
    piece.isFormatted |= takeSize(rest, piece);
    if (rest.starts_with('.')) {
      rest.remove_prefix(1);
      takeSize(rest, piece);
      piece.isFormatted = true;
    }
    take(rest, kLengths);
  }
  if (rest.empty() || kConversions.find(rest.front()) == kConversions.npos) return plain;
  piece.text = text.substr(0, text.size() - rest.size() + 1);
  return piece;
}

bool isPlaceholder(const FormatPiece& piece) {
  return piece.text.size() > 1 && piece.text != "%%";
}

}  // namespace

std::vector<FormatPiece> formatPiecesOf(std::string_view text, std::size_t always) {
  std::vector<FormatPiece> pieces;
  std::size_t next = 1;
  while (!text.empty()) {
    if (text.front() != '%') {
      pieces.push_back({std::string(text.substr(0, text.find('%')))});
    } else {
      FormatPiece piece = placeholderAt(text);
      if (isPlaceholder(piece) && piece.argument == 0) {
        next += piece.sizes;
        piece.argument = always != 0 ? always : next++;
      }
      pieces.push_back(std::move(piece));
    }
    text.remove_prefix(pieces.back().text.size());
  }
  return pieces;
}

std::size_t argumentsOf(const std::vector<FormatPiece>& pieces) {
  std::size_t all = 0;
  for (const FormatPiece& piece : pieces) all = std::max(all, piece.argument);
  return all;
}

std::string_view argumentName(std::size_t argument, std::size_t all) {
  constexpr std::string_view kNames[] = {"first", "second",  "third",  "fourth", "fifth",
                                         "sixth", "seventh", "eighth", "ninth",  "tenth"};
  if (all == 1) return "value";
  return argument <= std::size(kNames) ? kNames[argument - 1] : "";
}

std::string withNames(const std::vector<FormatPiece>& pieces, std::size_t all) {
  std::string text;
  for (const FormatPiece& piece : pieces) {
    if (piece.argument != 0) {
      text += fmt::format("%{{{}}}", argumentName(piece.argument, all));
    } else {
      text += piece.text == "%%" && all != 0 ? "%" : piece.text;
    }
  }
  return text;
}

}  // namespace zk::tools
