#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/page/ShownTexts.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;
using Json = nlohmann::json;

Json dataOf(const TemporaryProject& project) {
  return Json::parse(pageData(project.root()));
}

/// A value as the page's data marks it.
std::string marked(const std::string& name, const std::string& value) {
  return "\uFDD0" + name + "\uFDD1" + value + "\uFDD2";
}

TEST(Page, HasTheTextsOfTheEngineAndTheirStates) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), R"~("About" = "Über";
"badgeCount_Badges_zero" = "Keine";
"badgeCount_Badges_two" = "%{badgeCount} Abzeichen, %{badgeCount}";
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
  const std::string two = marked("badgeCount", "2");
  const Json texts = {"Über",
                      "<b>Rules</b>",
                      "Keine",
                      marked("badgeCount", "1") + " Badges",
                      two + " Abzeichen, " + two,
                      marked("badgeCount", "4") + " Badges",
                      marked("badgeCount", "11") + " Badges"};
  for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(german["texts"][i], texts[i]);
  EXPECT_EQ(german["characters"][0], 4);
  EXPECT_EQ(german["characters"][4], 14);
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

TEST(Page, ReportsEachFindingAtItsText) {
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
  EXPECT_TRUE(hasFinding(0, "unknown-comment")) << findings;
  EXPECT_TRUE(hasFinding(23, "unknown-placeholder")) << findings;
  EXPECT_TRUE(hasFinding(nullptr, "unknown-key")) << findings;
  EXPECT_FALSE(hasFinding(nullptr, "missing-key")) << findings;
}

TEST(Page, OmitsFoldersThatTheEngineNeverChooses) {
  const TemporaryProject project;
  for (const char* language : {"en", "pt-BR", "de"}) project.write(TemporaryProject::table(language), "");
  EXPECT_EQ(dataOf(project)["languages"].size(), 2u);
}

TEST(Page, ShowsEnglishForTablesThatCannotBeRead) {
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

TEST(Page, HasTextsInItsDataOnly) {
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

TEST(Page, NamesLanguagesInEnglishAndInTheLanguage) {
  const TemporaryProject project;
  for (const char* language : {"ar", "fr", "nb"}) project.write(TemporaryProject::table(language), "");
  const Json data = dataOf(project);
  std::vector<std::string> names;
  for (const Json& language : data["languages"]) {
    names.push_back(language["tag"].get<std::string>() + " " + language["english"].get<std::string>() + " " +
                    language["native"].get<std::string>());
    EXPECT_EQ(language["isRightToLeft"], language["tag"] == "ar");
  }
  EXPECT_EQ(names, (std::vector<std::string>{"en English English", "ar Arabic العربية", "fr French Français",
                                             "nb Norwegian Bokmål Norsk bokmål"}));
}

TEST(ShownTexts, FillTheCountIntoThePlaceholderForIt) {
  struct Case {
    const char* text;
    const char* shown;
  };
  constexpr Case kCases[] = {
      {"Coins", "Coins"},
      {"%{badgeCount} Badges", "11 Badges"},
      {"%{level} left of %{gameCount}", "level left of 11"},
      {"Found %{user}, looking for %{remaining}", "Found kim, looking for 11"},
      {"%{gifts} gifts", "11 gifts"},
      {"You got the letters %{letters}!", "You got the letters A, B!"},
  };
  const TemporaryProject project;
  project.write(CatalogueSettings::kFile, R"~({"name": "Texts", "numberPlaceholders": ["remaining"],
      "examples": {"letters": "A, B", "user": "kim"}})~");
  for (const auto& [text, shown] : kCases) {
    const Json entry = {{"key", "kept"}, {"text", text}, {"plural", true}, {"kept", "key"}};
    project.write(TemporaryProject::kCatalogue, "[\n" + entry.dump() + "\n]\n");
    const Catalogue catalogue = Catalogue::read(project.root());
    const EnglishTexts english(catalogue, {});
    const ShownTexts texts(project.root(), english);
    texts.choose(kBase);
    EXPECT_EQ(texts.text(english.all().back()), shown) << text;
  }
}

TEST(ShownTexts, FillInOtherTextsAsTheyAreTranslated) {
  const TemporaryProject project;
  project.write(CatalogueSettings::kFile, R"~({"name": "Texts", "examples": {
      "players": {"key": "playersCount_players", "count": 3}, "terms": {"key": "Terms_of_Use"},
      "Read_terms.terms": {"key": "Gone"}}})~");
  project.write(TemporaryProject::kCatalogue, R"~([
  {"key": "agree_to_terms", "text": "agree to %{terms}"},
  {"key": "players_remain", "text": "%{players} remain"},
  {"key": "playersCount_players", "text": "%{playersCount} of %{players}", "plural": true, "kept": "key"},
  {"key": "Read_terms", "text": "Read %{terms}"},
  {"key": "Terms_of_Use", "text": "Terms of Use"}
])~");
  project.write(TemporaryProject::table("de"), R"~("Terms_of_Use" = "Nutzungsbedingungen";
"playersCount_players_few" = "%{playersCount} Spieler von %{players}";)~");
  const Catalogue catalogue = Catalogue::read(project.root());
  const EnglishTexts english(catalogue, Table::read(project.root(), kBase));
  const ShownTexts shown(project.root(), english);
  shown.choose("de");
  const auto text = [&](const char* key) { return shown.text(*english.find(key)); };
  EXPECT_EQ(text("agree_to_terms"), "agree to Nutzungsbedingungen");
  EXPECT_EQ(text("Read_terms"), "Read Gone");
  EXPECT_EQ(text("players_remain"), "3 Spieler von players remain");
  // A text that refers to itself.
  EXPECT_EQ(text("playersCount_players_few"), "4 Spieler von 3 Spieler von players");
}

}  // namespace
