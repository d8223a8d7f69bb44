#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/support/Languages.h>

#include <string>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

TEST(Languages, HaveTheCodeThatTheWordMeans) {
  for (const auto& [word, code] :
       testing::rowsOf<std::string, std::string>("tools/support/LanguagesTest.json"))
    EXPECT_EQ(languageCodeOf(word), code) << word;
  EXPECT_EQ(languageCodeOf("\xFF\xFE"), "");
  EXPECT_EQ(languageCodeOf(std::string(100'000, 'a')), "");
}

}  // namespace
}  // namespace zk::tools
