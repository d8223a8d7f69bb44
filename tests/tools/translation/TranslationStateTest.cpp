#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using enum TranslationState;

TranslationState stateOfEntry(const std::string& comments, const std::string& text,
                              const std::string& english, const char* language = "de") {
  const Table table = Table::parse(fmt::format("{}\n{}", comments, tableLine("key", text)), "table");
  const Entry entry{"key", english};
  CatalogueSettings settings;
  settings.names = {"App Store", "PayPal", "ZK", "ZK Trivia"};
  return stateOf(language, table.find("key"), {"key", &entry, nullptr, english, &settings});
}

TEST(TranslationState, FollowsFromTextAndMark) {
  for (const auto& [comments, text, english, state] :
       zk::testing::rowsOf<std::string, std::string, std::string, std::string>(
           "tools/translation/TranslationStateTest.json"))
    EXPECT_EQ(nameOf(stateOfEntry(comments, text, english)), state) << comments << " " << text;
  EXPECT_EQ(stateOfEntry("", "About us", "About us", "Base"), translated);
  EXPECT_EQ(stateOfEntry("/* state: untranslated */", "About us", "About us", "Base"), translated);
}

}  // namespace
