#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/translation/TableUpdate.h>

#include <string>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

/// A project of three texts, one of them counted, for which the English table has but one form.
class Update : public ::testing::Test {
 protected:
  Update() {
    project_.write(TemporaryProject::kCatalogue, R"([
  {"key": "About", "text": "About"},
  {"key": "n_Coins", "text": "%{n} Coins", "plural": true},
  {"key": "ZK", "text": "ZK"}
]
)");
    project_.write(TemporaryProject::table("Base"), R"("About" = "About";
"n_Coins_one" = "%{n} Coin";
"ZK" = "ZK";
)");
  }
  void write(const std::string& table) const { project_.write(kTable, table); }
  [[nodiscard]] std::string read() const { return project_.read(kTable); }
  [[nodiscard]] TableUpdate update(bool prunes = false) const {
    return updateTable(project_.root(), "sv", prunes);
  }

  const std::string kTable = TemporaryProject::table("sv");
  TemporaryProject project_;
};

TEST_F(Update, AddsWhatIsMissingAtItsPlace) {
  write("/* Swedish. */\n\n\"ZK\" = \"ZK\"; // first\n\"n_Coins_two\" = \"%{n} mynt\";\n");
  EXPECT_EQ(update().added, 5u);
  EXPECT_EQ(read(), R"(/* Swedish. */

/* English: "About" */
/* state: untranslated */
"About" = "About";
/* English: "%{n} Coins"; placeholders: %{n} */
/* state: untranslated */
"n_Coins_zero" = "%{n} Coins";
/* English: "%{n} Coin"; placeholders: %{n} */
/* state: untranslated */
"n_Coins_one" = "%{n} Coin";
"ZK" = "ZK"; // first
"n_Coins_two" = "%{n} mynt";
/* English: "%{n} Coins"; placeholders: %{n} */
/* state: untranslated */
"n_Coins_few" = "%{n} Coins";
/* English: "%{n} Coins"; placeholders: %{n} */
/* state: untranslated */
"n_Coins_many" = "%{n} Coins";
)");
  const std::string updated = read();
  EXPECT_FALSE(update().isChange());
  EXPECT_EQ(read(), updated);
}

TEST_F(Update, KeepsTheMarksTrue) {
  project_.write(TemporaryProject::kCatalogue, R"([
  {"key": "About", "text": "About"},
  {"key": "About_us", "text": "About us"},
  {"key": "Accept", "text": "Accept"},
  {"key": "Account", "text": "Account"},
  {"key": "Add", "text": "Add"}
]
)");
  write(R"(/* state: untranslated */
"About" = "Om";
"About_us" = "About us";
/* state: needs-review */
"Accept" = "Accept";
"Account" = "";
/* state: untranslated */
"Add" = "Add";
)");
  const TableUpdate done = update();
  EXPECT_EQ(done.unmarked, 1u);
  EXPECT_EQ(done.marked, 2u);
  EXPECT_EQ(read(), R"("About" = "Om";
/* state: untranslated */
"About_us" = "About us";
/* state: needs-review */
"Accept" = "Accept";
/* state: untranslated */
"Account" = "";
/* state: untranslated */
"Add" = "Add";
)");
}

TEST_F(Update, RemovesWhatNothingLooksUpOnlyWhenTold) {
  write("\"About\" = \"Om\";\n\"Abuot\" = \"Om\";\n");
  const TableUpdate kept = update();
  ASSERT_EQ(kept.notLookedUp.size(), 1u);
  EXPECT_EQ(kept.notLookedUp[0].message, "nothing looks up the key \"Abuot\"; --prune removes the entry");
  EXPECT_NE(read().find("\"Abuot\""), std::string::npos);

  const TableUpdate pruned = update(true);
  EXPECT_EQ(pruned.removed, 1u);
  EXPECT_TRUE(pruned.notLookedUp.empty());
  EXPECT_EQ(read().find("\"Abuot\""), std::string::npos);
  EXPECT_TRUE(read().starts_with("\"About\" = \"Om\";\n"));
}

TEST_F(Update, LeavesAGapInsteadOfAMissingText) {
  write("");
  static_cast<void>(update());
  const Faults faults = check(project_.root(), {{"sv"}, {}, false}).faults;
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].severity, Severity::gap);
  EXPECT_TRUE(faults[0].message.starts_with("6 texts untranslated")) << faults[0].message;
}

TEST_F(Update, RefusesWithoutChangingAnything) {
  struct Case {
    const char* language;
    std::string table;
  };
  const Case cases[] = {
      {"Base", ""}, {"en", ""}, {"sv-SE", ""}, {"da", ""}, {"sv", "\"About\" = \"Om\""}, {"sv", "/*"},
  };
  for (const auto& [language, table] : cases) {
    write(table);
    EXPECT_THROW(updateTable(project_.root(), language, true), CommandFailed) << language << " " << table;
    EXPECT_EQ(read(), table);
  }
}

}  // namespace
