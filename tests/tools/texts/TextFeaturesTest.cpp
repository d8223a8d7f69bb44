#include <ZKStrings/tools/texts/TextFeatures.h>

#include <cstddef>

#include <gtest/gtest.h>

namespace {

TEST(TextFeatures, CountUserPerceivedCharacters) {
  struct Case {
    const char* text;
    std::size_t characters;
  };
  constexpr Case kCases[] = {
      {"", 0},
      {"About", 5},
      {"Gelo\u0308scht", 8},
      {"关于", 2},
      {"\u1112\u1161\u11AB", 1},
      {"हिन्दी", 2},
      {"👩\u200D👩\u200D👧", 1},
      {"🇩🇪", 1},
      {"a\nb", 3},
      {"\xFF", 1},
      {"a\xE2\x82", 2},
  };
  for (const auto& [text, characters] : kCases) EXPECT_EQ(zk::tools::charactersIn(text), characters) << text;
}

}  // namespace
