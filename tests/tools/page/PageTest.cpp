#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/page/ExampleValues.h>
#include <ZKStrings/tools/page/LanguageName.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/page/PageData.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;
using Json = nlohmann::json;

Json dataOf(const TemporaryProject& project) {
  return Json::parse(pageData(project.root()));
}

TEST(Page, HoldsWhatTheEngineShowsAndHowFarItIsTranslated) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), R"~("About" = "Über";
"badgeCount_Badges_zero" = "Keine";
"badgeCount_Badges_two" = "%{badgeCount} Abzeichen";
/* state: needs-review */
"Kick_username" = "%{username} rauswerfen?";
"Tap_it_to_use_one" = "Tap it to use one";
)~");
  const Json data = dataOf(project);
  ASSERT_EQ(data["languages"].size(), 2u);
  EXPECT_EQ(data["languages"][0]["tag"], "en");
  const Json& german = data["languages"][1];
  EXPECT_EQ(german["native"], "Deutsch");

  // About, b_Rules_b, the five forms of badgeCount_Badges, ...
  const Json texts = {"Über", "<b>Rules</b>", "Keine", "%{badgeCount} Badges", "%{badgeCount} Abzeichen"};
  const Json finished = {0, 0, 0, "1 Badges", "2 Abzeichen"};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(german["texts"][i], texts[i]);
    EXPECT_EQ(german["finished"][i], finished[i]);
  }
  EXPECT_EQ(german["characters"][0], 4);
  EXPECT_EQ(german["states"],
            "tmtmtmm"
            "mmmmmmm"
            "m"
            "r"
            "mmmmm"
            "m"
            "u"
            "mm");
}

TEST(Page, TellsEachFindingAtItsText) {
  const TemporaryProject project;
  project.write(
      TemporaryProject::table("de"),
      "\"Top_10\" = \"Die %{zehn}\";\n/* state: done */\n\"About\" = \"*Info\"; \"Gone\" = \"Weg\";\n");
  const Json findings = dataOf(project)["languages"][1]["findings"];
  const auto hasFinding = [&](const Json& text, const std::string& rule) {
    for (const Json& finding : findings) {
      if (finding[0] == text && finding[2] == rule) return true;
    }
    return false;
  };
  EXPECT_TRUE(hasFinding(0, "marks")) << findings;
  EXPECT_TRUE(hasFinding(0, "unknown-state")) << findings;
  EXPECT_TRUE(hasFinding(23, "unknown-placeholder")) << findings;
  EXPECT_TRUE(hasFinding(nullptr, "unknown-key")) << findings;
  EXPECT_FALSE(hasFinding(nullptr, "missing-key")) << findings;
}

TEST(Page, LeavesOutFoldersThatTheModuleNeverChooses) {
  const TemporaryProject project;
  for (const char* language : {"en", "pt-BR", "de"}) project.write(TemporaryProject::table(language), "");
  EXPECT_EQ(dataOf(project)["languages"].size(), 2u);
}

TEST(Page, IsMadeOfFaultyTablesToo) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("Base"), "\"About\" = ");
  project.write(TemporaryProject::table("de"), "\xFF\xFE\x00");
  const Json data = dataOf(project);
  EXPECT_EQ(data["languages"][0]["isWellFormed"], false);
  EXPECT_EQ(data["languages"][1]["texts"][0], "About");
}

TEST(Page, NeedsACatalogueAndTheEnglishFolder) {
  const TemporaryProject withoutFolder;
  std::filesystem::remove_all(withoutFolder.root() + "/resources/Base.lproj");
  EXPECT_THROW(static_cast<void>(pageOf(withoutFolder.root())), CommandFailed);
  const TemporaryProject withoutCatalogue;
  withoutCatalogue.write(TemporaryProject::kCatalogue, "[");
  EXPECT_THROW(static_cast<void>(pageOf(withoutCatalogue.root())), CommandFailed);
}

TEST(Page, HasNoTextOutsideItsData) {
  const TemporaryProject peaceful;
  const TemporaryProject hostile;
  hostile.write(TemporaryProject::table("Base"), "\"About\" = \"</script><!--<script>@DATA@]]>\";");
  const std::string page = pageOf(hostile.root());
  const auto linesOutsideData = [](const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
  };
  EXPECT_EQ(linesOutsideData(page), linesOutsideData(pageOf(peaceful.root())));
  EXPECT_EQ(page.find("<!--"), std::string::npos);
  EXPECT_NE(page.find("\\u003c/script>\\u003c!--\\u003cscript>@DATA@]]>"), std::string::npos);
}

TEST(ExampleValues, GiveTheCountToThePlaceholderThatSaysIt) {
  struct Case {
    const char* text;
    const char* placeholder;
  };
  constexpr Case kCases[] = {
      {"Coins", ""},
      {"%{badgeCount} Badges", "badgeCount"},
      {"%{level} left of %{gameCount}", "gameCount"},
      {"Found %{username}, looking for %{remaining}", "remaining"},
      {"%{gifts} gifts", "gifts"},
      {"You got the letters %{letters}!", ""},
  };
  for (const auto& [text, placeholder] : kCases) {
    EXPECT_EQ(countPlaceholder({"key", text, true}), placeholder) << text;
    EXPECT_EQ(countPlaceholder({"key", text, false}), "") << text;
  }
}

TEST(ExampleValues, TakeOtherTextsAsTheyAreTranslated) {
  const TemporaryProject project;
  project.write(TemporaryProject::kCatalogue, R"~([
  {"key": "agree_to_terms", "text": "agree to %{terms}"},
  {"key": "players_remain_gifts_too", "text": "%{players} remain, %{gifts} too"},
  {"key": "playersCount_players", "text": "%{playersCount} of %{players}", "plural": true, "kept": "key"},
  {"key": "Terms_of_Use", "text": "Terms of Use"}
])~");
  project.write(TemporaryProject::table("de"), R"~("Terms_of_Use" = "Nutzungsbedingungen";
"playersCount_players_many" = "%{playersCount} Spieler von %{players}";)~");
  const Catalogue catalogue = Catalogue::read(project.root());
  const AppTexts texts(project.root());
  const auto values = [&](std::size_t entry, std::optional<std::int64_t> count) {
    return exampleValues(texts, catalogue, "de", catalogue.entries()[entry], count);
  };
  EXPECT_EQ(values(0, std::nullopt), (Values{{"terms", "Nutzungsbedingungen"}}));
  EXPECT_EQ(values(1, std::nullopt), (Values{{"players", "12 Spieler von players"}, {"gifts", "gifts"}}));
  // A text that would be nested in itself.
  EXPECT_EQ(values(2, 2), (Values{{"playersCount", "2"}, {"players", "12 Spieler von players"}}));
}

TEST(LanguageName, IsToldInEnglishAndInTheLanguage) {
  struct Case {
    const char* language;
    LanguageName name;
  };
  const Case cases[] = {
      {"Base", {"en", "English", "English", false}},
      {"fr", {"fr", "French", "Français", false}},
      {"ar", {"ar", "Arabic", "العربية", true}},
      {"pl", {"pl", "Polish", "Polski", false}},
      {"nb", {"nb", "Norwegian Bokmål", "Norsk bokmål", false}},
  };
  for (const auto& [language, expected] : cases) {
    const LanguageName name = nameOfLanguage(language);
    EXPECT_EQ(name.tag, expected.tag) << language;
    EXPECT_EQ(name.english, expected.english) << language;
    EXPECT_EQ(name.native, expected.native) << language;
    EXPECT_EQ(name.isRightToLeft, expected.isRightToLeft) << language;
  }
}

}  // namespace
