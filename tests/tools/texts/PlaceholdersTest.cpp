#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/texts/Placeholders.h>

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
  for (const auto& [text, pieces] :
       zk::testing::rowsOf<std::string, std::string>("tools/texts/PlaceholdersTest.json"))
    EXPECT_EQ(shown(text), pieces) << text;
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
