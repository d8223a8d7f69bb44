#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <cstddef>

#include <gtest/gtest.h>

namespace {

TEST(TextFeatures, CountUserPerceivedCharacters) {
  auto rows = zk::testing::rowsOf<std::string, std::size_t>("tools/texts/TextFeaturesTest.json");
  rows.emplace_back("\xFF", 1);
  rows.emplace_back("a\xE2\x82", 3);
  for (const auto& [text, characters] : rows) EXPECT_EQ(zk::tools::charactersIn(text), characters) << text;
}

}  // namespace
