#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/check/EndPunctuation.h>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

TEST(EndPunctuation, IsFoundInAllScriptsAndBeforeClosingMarks) {
  auto rows =
      zk::testing::rowsOf<std::string, std::string, std::string>("tools/check/EndPunctuationTest.json");
  rows.emplace_back("\xFF!", "an exclamation mark", "de");
  rows.emplace_back("!\xFF", "no punctuation", "de");
  for (const auto& [text, ending, language] : rows)
    EXPECT_EQ(nameOf(endingOf(text, language)), ending) << text;
}

}  // namespace
