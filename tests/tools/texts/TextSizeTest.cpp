#include <ZKStrings/tools/texts/TextSize.h>

#include <gtest/gtest.h>

namespace {

using zk::tools::sizeOf;

TEST(TextSize, CountsWhatReadersSeeAndTheRoomItTakes) {
  struct Case {
    const char* text;
    std::size_t characters;
    std::size_t columns;
  };
  constexpr Case kCases[] = {
      {"", 0, 0},
      {"About", 5, 5},
      {"Gelöscht", 8, 8},
      {"Gelo\u0308scht", 8, 8},
      {"关于", 2, 4},
      {"한국어", 3, 6},
      {"\u1112\u1161\u11AB", 1, 2},
      {"ｱﾊﾞ", 2, 2},
      {"हिन्दी", 2, 2},
      {"محّاية", 5, 5},
      {"❤\uFE0F", 1, 2},
      {"👩\u200D👩\u200D👧", 1, 2},
      {"🇩🇪", 1, 2},
      {"\u200E+1", 3, 2},
      {"a\nb", 3, 2},
      {"\xFF", 1, 1},
      {"a\xE2\x82", 2, 2},
  };
  for (const auto& [text, characters, columns] : kCases) {
    EXPECT_EQ(sizeOf(text).characters, characters) << text;
    EXPECT_EQ(sizeOf(text).columns, columns) << text;
  }
}

}  // namespace
