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
  return stateOf(language, table.find("key"), {"key", &entry, "", english, &settings});
}

TEST(TranslationState, FollowsFromTextAndMark) {
  constexpr const char* kUntranslated = "/* state: untranslated */";
  constexpr const char* kNeedsReview = "// state: needs-review";
  constexpr const char* kOff = "/* check: off untranslated */";
  struct Case {
    const char* comments;
    const char* text;
    const char* english;
    TranslationState state;
  };
  constexpr Case kCases[] = {
      {"", "Über uns", "About us", translated},
      {"", "About us", "About us", untranslated},
      {"", "Bonus", "Bonus", translated},
      {"", "ZK Rewards", "ZK Rewards", untranslated},
      {"", "ZK Trivia", "ZK Trivia", translated},
      {"", "PayPal & App Store: %{shop}", "PayPal & App Store: %{shop}", translated},
      {"", "Top 10", "Top 10", translated},
      {"", "%{shown questions} Badges", "%{shown questions} Badges", untranslated},
      {"", "%{badgeCount} Badges", "%{badgeCount} Badges", translated},
      {"", "", "About", untranslated},
      {"", " \n", "About", untranslated},
      {kUntranslated, "Bonus", "Bonus", untranslated},
      {kUntranslated, "Zulage", "Bonus", translated},
      {kNeedsReview, "Zulage", "Bonus", needsReview},
      {kNeedsReview, "Bonus", "Bonus", needsReview},
      {kOff, "About us", "About us", translated},
      {"/* state: untranslated */ // state: needs-review", "Zulage", "Bonus", needsReview},
      {"/* state: needs-review */ // state: untranslated", "Bonus", "Bonus", untranslated},
      {"/* state: done */ /* the state: untranslated */", "Bonus", "Bonus", translated},
  };
  for (const auto& [comments, text, english, state] : kCases) {
    EXPECT_EQ(nameOf(stateOfEntry(comments, text, english)), nameOf(state)) << comments << " " << text;
  }
  EXPECT_EQ(stateOfEntry("", "About us", "About us", "Base"), translated);
  EXPECT_EQ(stateOfEntry(kUntranslated, "About us", "About us", "Base"), translated);
}

}  // namespace
