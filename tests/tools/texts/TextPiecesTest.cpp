#include <ZKStrings/tools/texts/TextPieces.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

/// The pieces of `text` between bars: words as they are, placeholders after "=", pairs after ">" and "<".
std::string shown(std::string_view text) {
  std::string result;
  for (const TextPiece& piece : piecesOf(text)) {
    constexpr const char* kSigns[] = {"|", "|=", "|>", "|<"};
    result += kSigns[static_cast<int>(piece.kind)];
    result += piece.text;
  }
  return result;
}

TEST(TextPieces, SeparateWordsFromCodes) {
  struct Case {
    const char* text;
    const char* pieces;
  };
  constexpr Case kCases[] = {
      {"", ""},
      {"About", "|About"},
      {"%{n} of %{n}", "|=%{n}| of |=%{n}"},
      {"<b>Rules</b>, *now*", "|><b>|Rules|<</b>|, |>*|now|<*"},
      {"<b>%{n}*x*</b>", "|><b>|=%{n}|>*|x|<*|<</b>"},
      {"**", "|>*|<*"},
      {"5 * 3", "|5 |=*| 3"},
      {"</b>x<b>", "|=</b>|x|=<b>"},
      {"<b>*x</b>*", "|=<b>|=*|x|=</b>|=*"},
      {"<b>x", "|=<b>|x"},
      {"<b><b><b><b><b><b><b><b><b></b></b></b></b></b></b></b></b></b>",
       "|=<b>|=<b>|=<b>|=<b>|=<b>|=<b>|=<b>|=<b>|=<b>|=</b>|=</b>|=</b>|=</b>|=</b>|=</b>|=</b>|=</b>|=</b>"},
      {"a < b > c <i>", "|a < b > c <i>"},
      {"%{ n } {n} 100% %n", "|%{ n } {n} 100% %n"},
  };
  for (const auto& [text, pieces] : kCases) EXPECT_EQ(shown(text), pieces) << text;
}

TEST(TextPieces, NumberCodesAsInTheEnglishText) {
  using Numbers = std::vector<std::size_t>;
  const auto numbers = [](std::string_view target, std::string_view source) {
    return codeNumbers(piecesOf(target), piecesOf(source));
  };
  EXPECT_EQ(numbers("%{b}%{a}", "%{a}%{b}"), (Numbers{2, 1}));
  EXPECT_EQ(numbers("%{a}%{a}%{a}", "%{a} %{a}"), (Numbers{1, 2, 3}));
  EXPECT_EQ(numbers("<b>x</b>", "%{a} <b>y</b>"), (Numbers{2, 0, 3}));
  EXPECT_EQ(numbers("%{new}", "%{a}"), (Numbers{2}));
}

}  // namespace
