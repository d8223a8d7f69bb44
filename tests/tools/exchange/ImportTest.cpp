#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/exchange/Export.h>
#include <ZKStrings/tools/exchange/Import.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

constexpr const char* kTable = R"(/* Deutsch. */

"About" = "Über"; // kept
/* state: needs-review */
"b_Rules_b" = "<b>Regeln</b>";
/* a remark */ /* check: off same-plurals */
/* English: "Coins" */
/* state: untranslated */
"Coins" = "Coins";

"Kick_username" =
    "%{username} rauswerfen?";
"nothing_looks_this_up" = "x";
"ZK_Trivia" = "ZK Trivia";)";

class Importing : public ::testing::Test {
 protected:
  Importing() { write(kTable); }
  void write(const std::string& table) const { project_.write(TemporaryProject::table("de"), table); }
  [[nodiscard]] std::string read() const { return project_.read(TemporaryProject::table("de")); }
  [[nodiscard]] Import import(const std::vector<TranslationUnit>& units, bool force = false) const {
    return importTranslations(project_.root(), {"de", units}, "de.xlf", force);
  }

  static TranslationUnit unit(std::string key, std::string source, std::string target,
                              TranslationState state = TranslationState::translated) {
    return {std::move(key), std::move(source), std::move(target), state, {}, {7, 3}};
  }

  TemporaryProject project_;
};

/// `table` with `now` instead of `before`.
std::string with(std::string table, const std::string& before, const std::string& now) {
  const std::size_t at = table.find(before);
  return at == std::string::npos ? "not in the table: " + before : table.replace(at, before.size(), now);
}

TEST_F(Importing, ChangesNothingButTheText) {
  struct Case {
    TranslationUnit unit;
    const char* before;
    const char* now;
  };
  const auto review = TranslationState::needsReview;
  const Case cases[] = {
      {unit("About", "About", "Info \"x\"\n"), "Über", "Info \\\"x\\\"\\n"},
      {unit("About", "About", "Über", review), "\"About\"", "/* state: needs-review */\n\"About\""},
      {unit("b_Rules_b", "<b>Rules</b>", "<b>Regeln</b>"), "/* state: needs-review */\n", ""},
      {unit("b_Rules_b", "<b>Rules</b>", "<b>Regel</b>", review), "Regeln", "Regel"},
      {unit("Coins", "Coins", "Münzen"), "/* state: untranslated */\n\"Coins\" = \"Coins\"",
       "\"Coins\" = \"Münzen\""},
      {unit("Coins", "Coins", "Coins"), "/* state: untranslated */\n", ""},
      {unit("Kick_username", "Kick %{username}?", "Kick %{username}?"), "%{username} rauswerfen?",
       "Kick %{username}?"},
      {unit("Be_quick_nBuy_two", "*Be quick!*\nBuy two.", "*Los!*\nKauf zwei."), "\n/* a remark",
       "\n\"Be_quick_nBuy_two\" = \"*Los!*\\nKauf zwei.\";\n/* a remark"},
      {unit("Download_on", "Download on ", "Laden bei ", review), "\n\"Kick_username\"",
       "/* state: needs-review */\n\"Download_on\" = \"Laden bei \";\n\n\"Kick_username\""},
      {unit("ZK_Trivia", "ZK Trivia", "ZK Trivia"), "", ""},
      {unit("ZK_Trivia", "ZK Trivia", ""), "", ""},
  };
  for (const auto& [given, before, now] : cases) {
    write(kTable);
    const Import done = import({given});
    EXPECT_EQ(done.refused, 0u) << given.key;
    EXPECT_EQ(read(), with(kTable, before, now)) << given.key << " " << given.target;
    const std::string once = read();
    EXPECT_EQ(import({given}).unchanged, given.target.empty() ? 0u : 1u) << given.key;
    EXPECT_EQ(read(), once) << given.key;
  }
}

TEST_F(Importing, RefusesSingleTextsAndTakesTheOthers) {
  struct Case {
    TranslationUnit unit;
    const char* reason;
  };
  const Case cases[] = {
      {unit("Abuot", "About", "Info"), "nothing looks up the key \"Abuot\""},
      {unit("About", "About us", "Über uns"),
       "the English of \"About\" is now \"About\", no longer \"About us\""},
      {unit("Top_10", "Top 10", "Elf"), "the key \"Top_10\" stands twice"},
  };
  for (const auto& [given, reason] : cases) {
    write(kTable);
    const Import done = import({unit("Top_10", "Top 10", "Top 10"), given});
    EXPECT_EQ(done.added, 1u) << given.key;
    EXPECT_EQ(done.refused, 1u) << given.key;
    ASSERT_EQ(done.faults.size(), 1u) << given.key;
    EXPECT_EQ(formatted(done.faults[0], false).find("de.xlf:7:3: warning: "), 0u);
    EXPECT_TRUE(done.faults[0].message.starts_with(reason)) << done.faults[0].message;
    EXPECT_NE(read().find("\"Top_10\" = \"Top 10\";"), std::string::npos) << read();
    EXPECT_NE(read().find("\"About\" = \"Über\";"), std::string::npos) << read();
  }
}

TEST_F(Importing, TakesATranslationOfAnOldTextWhenForcedAndMarksIt) {
  EXPECT_EQ(import({unit("About", "About us", "Über uns")}, true).changed, 1u);
  EXPECT_EQ(read(),
            with(with(kTable, "Über", "Über uns"), "\"About\"", "/* state: needs-review */\n\"About\""));
}

TEST_F(Importing, TellsWhatItKeptThoughTheFileHasNoText) {
  const Import done = import({unit("About", "About", " "), unit("Coins", "Coins", "")});
  ASSERT_EQ(done.faults.size(), 1u);
  EXPECT_EQ(done.faults[0].severity, Severity::note);
  EXPECT_EQ(done.refused, 0u);
  EXPECT_EQ(read(), kTable);
}

TEST_F(Importing, WritesNothingWhenCheckFindsAnErrorInWhatItTook) {
  try {
    static_cast<void>(import({unit("About", "About", "Info"),
                              unit("Kick_username", "Kick %{username}?", "%{benutzer} rauswerfen")}));
    ADD_FAILURE();
  } catch (const CommandFailed& failed) {
    std::string all;
    for (const Fault& fault : failed.faults) all += formatted(fault, false) + "\n";
    EXPECT_NE(all.find("de.xlf:7:3: error: \"Kick_username\": the English text has no placeholder"),
              std::string::npos)
        << all;
  }
  EXPECT_EQ(read(), kTable);
}

TEST_F(Importing, IsNotHeldUpByErrorsInOtherTexts) {
  const std::string faulty = with(kTable, "%{username} raus", "%{benutzer} raus");
  write(faulty);
  EXPECT_EQ(import({unit("About", "About", "Info")}).changed, 1u);
  EXPECT_EQ(read(), with(faulty, "Über", "Info"));
}

TEST_F(Importing, LeavesTheFileWhenItCannotGoOn) {
  const std::vector<TranslationUnit> units = {unit("About", "About", "Info")};
  for (const char* const language : {"Base", "fr", "xx"})
    EXPECT_THROW(importTranslations(project_.root(), {language, units}, "x", false), CommandFailed)
        << language;
  write("\"About\" = \"Über\"");
  EXPECT_THROW(static_cast<void>(import(units)), CommandFailed);
  EXPECT_EQ(read(), "\"About\" = \"Über\"");
}

TEST_F(Importing, OfAnExportChangesNoShippedTable) {
  namespace fs = std::filesystem;
  constexpr auto kAll = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
  for (const char* const folder : {"catalogue", "resources"})
    fs::copy(fs::path(ZK_PROJECT_ROOT) / folder, fs::path(project_.root()) / folder, kAll);
  for (const fs::directory_entry& directory :
       fs::directory_iterator(fs::path(project_.root()) / "resources")) {
    const std::string language = directory.path().stem().string();
    if (directory.path().extension() != ".lproj" || language == "Base") continue;
    const std::string table = project_.read(TemporaryProject::table(language));
    const Translations sent = translationsOf(project_.root(), language, false);
    const Import done = importTranslations(project_.root(), sent, "x", false);
    EXPECT_TRUE(done.faults.empty()) << language << ": " << formatted(done.faults[0], false);
    EXPECT_EQ(done.added + done.changed + done.marked, 0u) << language;
    EXPECT_TRUE(project_.read(TemporaryProject::table(language)) == table) << language;
  }
}

TEST_F(Importing, GivesBackWhatWasExported) {
  const Translations all = translationsOf(project_.root(), "de", false);
  ASSERT_EQ(all.units.size(), 25u);
  const Translations lacking = translationsOf(project_.root(), "de", true);
  ASSERT_EQ(lacking.units.size(), 21u);  // all but the four that are translated
  for (const TranslationUnit& given : lacking.units) EXPECT_EQ(given.target, "") << given.key;
  const auto coins = std::find_if(all.units.begin(), all.units.end(), [](const TranslationUnit& given) {
    return given.key == "badgeCount_Badges_few";
  });
  ASSERT_NE(coins, all.units.end());
  EXPECT_EQ(coins->notes,
            (std::vector<std::string>{
                "The plural form _few is used for 3, 4 and 5. It must be right for every such number.",
                "The app fills in %{badgeCount}. Copy what stands there letter by letter.",
                "The English has 20 characters."}));
}

}  // namespace
