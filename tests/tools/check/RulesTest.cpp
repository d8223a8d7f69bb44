#include <ZKStrings/tests/tools/check/FaultyFile.h>

#include <set>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using namespace zk::tools;
using namespace zk::testing;

File countries(std::string content) {
  return {TemporaryProject::kCountries, std::move(content)};
}

/// A country list with a second country.
File secondCountry(const std::string& second) {
  return countries("[\n  {\"name\": \"Austria\", \"phoneCode\": 43, \"iso\": \"AT\"},\n  " + second + "\n]");
}

/// A table with the plural forms of Coins.
File coins(const char* language, const std::string& one, const std::string& others) {
  std::string lines;
  for (const std::string form : {"zero", "one", "two", "few", "many"}) {
    lines += fmt::format("\"Coins_{}\" = \"{}\";\n", form, form == "one" ? one : others);
  }
  return table(language, lines);
}

File fr(const std::string& line) {
  return table("fr", line);
}

struct RuleCase {
  const char* rule;
  File wrong;     ///< breaks the rule, once, and no other
  File nearMiss;  ///< breaks none
  const char* place;
  const char* says;  ///< a part of the message
};

const std::vector<RuleCase> kRuleCases = {
    {"language-directory", table("xx", ""), table("aa", ""), "1:1", "no language code"},
    {"language-directory", table("en", ""), table("Base", englishWithout("").content), "1:1", "Base.lproj"},
    {"language-directory", table("pt-BR", ""), table("pt", ""), "1:1", "name it pt.lproj"},
    {"language-directory", table("DE", ""), table("de", ""), "1:1", "name it de.lproj"},
    {"missing-table", {"resources/de.lproj/Other.strings", ""}, de(""), "1:1", "zkstrings template"},
    {"encoding", de("\"About\" = \"\xC3\x9C\xFC\";"), de("\"About\" = \"\xC3\x9C\";"), "1:13", "UTF-8"},
    {"encoding", de("\xFF\xFE\0"s), de("\xFF\xFE\"\0A\0b\0o\0u\0t\0\"\0=\0\"\0a\0\"\0;\0"s), "1:1", "save"},
    {"encoding", de("\xEF\xBB\xBF\"About\" = \"\xFC\";"), de("\xEF\xBB\xBF\"About\" = \"Info\";"), "1:12",
     "UTF-8"},
    {"table-syntax", de("\"About\" = \"Info\"\n"), de("About=Info;"), "1:17", "expected \";\""},
    {"table-syntax", de("\"About\" =\n  \"Info\" // x\n\"Top_10\" = \"10\";"), de("About=Info;"), "2:9",
     "\";\""},
    {"table-syntax", de("\n/*"), de("\n/**/"), "2:1", "the end \"*/\""},
    {"duplicate-key", de("\"About\" = \"A\";\n\"About\" = \"B\";"), de("\"About\" = \"A\";"), "2:2",
     "line 1"},
    {"replacement-character", de(R"("About" = "\U00dc\UFFFDer";)"), de(R"("About" = "\U00dcber";)"), "1:18",
     "U+FFFD"},
    {"control-character", de(R"("About" = "Ü\1ber";)"), de(R"("About" = "Ü\tber";)"), "1:13", "U+0001"},
    {"unknown-placeholder", de(R"("Kick_username" = "\"%{username}\" %{usernam}?";)"),
     de(R"("Kick_username" = "„%{username}“?";)"), "1:36", R"("%{usernam}"; write "%{username}")"},
    {"unknown-placeholder", de(R"("About" = "%{name}";)"), de(R"("About" = "name";)"), "1:12", "remove it"},
    {"unknown-placeholder", de(R"("badgeCount_Badges_zero" = "%{count1}";)"),
     de(R"("badgeCount_Badges_zero" = "%{badgeCount}";)"), "1:29", R"(; write "%{badgeCount}")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%{ username}?";)"),
     de(R"("Kick_username" = "% %{username}?";)"), "1:20",
     R"("%{ username}" is no placeholder and shows as it stands; write "%{username}")"},
    {"placeholder-spelling", de(R"("Kick_username" = "{username}?";)"),
     de(R"("Kick_username" = "(%{username})?";)"), "1:20", R"("{username}")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%username?";)"),
     de(R"("Kick_username" = "%{username} voll%ig?";)"), "1:20", R"("%username")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%{username raus?";)"),
     de(R"("Kick_username" = "%{username} raus?";)"), "1:20", R"("%{username")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%{username %{username}?";)"),
     de(R"("Kick_username" = "%%{username}?";)"), "1:20", R"("%{username")"},
    {"placeholder-spelling", de(R"("Kick_username" = "％｛username｝?";)"),
     de(R"("Kick_username" = "%{username} voll％ig?";)"), "1:20",
     R"("％｛username｝" is no placeholder and shows as it stands; write "%{username}")"},
    {"placeholder-spelling", de(R"("Kick_username" = "％{username}?";)"),
     de(R"("Kick_username" = "％%{username}?";)"), "1:20", R"("％{username}")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%{username｝?";)"),
     de(R"("Kick_username" = "（%{username}）?";)"), "1:20", R"("%{username｝")"},
    {"placeholder-spelling", de(R"("Kick_username" = "%﹛username﹜?";)"),
     de(R"("Kick_username" = "%{username}、?";)"), "1:20", R"("%﹛username﹜")"},
    {"placeholder-spelling", de(R"("Kick_username" = "％username?";)"),
     de(R"("Kick_username" = "%{username}％?";)"), "1:20", R"("％username")"},
    {"placeholder-spelling", de(R"("Kick_username" = "\"\Ud83d\Ude00\U00e4 {username}?";)"),
     de(R"("Kick_username" = "\"%{username}?";)"), "1:41", "{username}"},
    {"country-list", countries("{}"), countries("[]"), "1:1", "no array"},
    {"country-list", countries("[\n  {\"name\" \"Austria\"}\n]"), countries("[ ]"), "2:19", "not JSON"},
    {"country-list", countries("\uFEFF\uFEFF[]"), countries("\uFEFF[]"), "1:1", "not JSON"},
    {"country-list", secondCountry("\"]\""),
     secondCountry("{\"name\": \"]\", \"phoneCode\": 1, \"iso\": \"BR\"}"), "3:3", "no object"},
    {"dropped-country", secondCountry(R"({"name": "Peru", "phoneCode": "51", "iso": "PE"})"),
     secondCountry(R"({"name": "Peru", "phoneCode": 51, "iso": "PE", "more": [{}, "},{"]})"), "3:3",
     "phoneCode"},
    {"duplicate-country", secondCountry(R"({"name": "Peru", "phoneCode": 51, "iso": "AT"})"),
     secondCountry(R"({"name": "Austria", "phoneCode": 43, "iso": "PE"})"), "3:3", "line 2"},
    {"country-code", secondCountry(R"({"name": "Peru", "phoneCode": 51, "iso": "Pe"})"),
     secondCountry(R"({"name": "Peru", "phoneCode": 51, "iso": "PE"})"), "3:3", "\"Pe\""},
    {"country-code",
     countries(
         R"([{"name": "\"},", "phoneCode": 1, "iso": "US"}, {"name": "?", "phoneCode": 1, "iso": ""}])"),
     countries(R"([{"name": "\"},", "phoneCode": 1, "iso": "US"}])"), "1:49", "\"\""},
    {"country-name", secondCountry(R"({"name": "\u3000 ", "phoneCode": 51, "iso": "PE"})"),
     secondCountry(R"({"name": "P", "phoneCode": 51, "iso": "PE"})"), "3:3", "empty name"},
    {"phone-code", secondCountry(R"({"name": "Peru", "phoneCode": 0, "iso": "PE"})"),
     secondCountry(R"({"name": "Peru", "phoneCode": 1, "iso": "PE"})"), "3:3", "phone code 0"},
    {"empty-text", de(R"("Kick_username" = " ";)"), de(R"("About" = "-";)"), "1:20", "Kick_username"},
    {"unknown-escape", de(R"("About" = "\qber";)"), de(R"("About" = "\\qber";)"), "1:12", R"("\q")"},
    {"unknown-state", de("/* ü */ /* state: needs review */ \"About\" = \"Info\";"),
     de("/* state:untranslated */ \"About\" = \"Info\"; // state: of the art"), "1:9",
     "write \"needs-review\""},
    {"unknown-state", de("\"About\" // state: done\n= \"Info\";"),
     de("// stated: done\n\"About\" = \"Info\";"), "1:9", "\"untranslated\" or"},
    {"missing-key", englishWithout("Coins_one"), englishWithout(""), "1:1",
     "1 text missing; zkstrings update ja lists them"},
    {"missing-english", table("Base", englishWithout("Coins_one").content),
     table("Base", englishWithout("").content), "1:1", R"(lacks "Coins_one")"},
    {"untranslated",
     de("\"Download_on\" = \"Download on \";\n\"Tap_it_to_use_one\" = \"Tap it to use one\";"),
     de(R"("About" = "About";)"), "1:18", "2 texts untranslated"},
    {"needs-review", de("/* state: needs-review */\n\"About\" = \"Info\";"), de(R"("About" = "Info";)"),
     "2:12", "/* state: needs-review */"},
    {"unknown-key", de(R"("Abuot" = "Info";)"), de(R"("About" = "Info";)"), "1:2", R"(write "About")"},
    {"unknown-key", de(R"("About_one" = "Info";)"), de(R"("Tap_it_to_use_one" = "Info";)"), "1:2",
     "\"About\" is not counted"},
    {"unknown-key", de(R"("badgeCount_Badges" = "%{badgeCount}";)"), de(R"("Coins" = "Geld";)"), "1:2",
     R"(write "badgeCount_Badges_zero")"},
    {"same-plurals", coins("de", "Taler", "Taler"), coins("de", "Münze", "Münzen"), "1:17", "\"Coins\""},
    {"same-plurals", coins("es", "oro", "oro"), coins("tr", "Jeton", "Jeton"), "1:17", "differ"},
    {"unused-placeholder", de(R"("Kick_username" = "Raus?";)"),
     de(R"("Kick_username" = "%{username} raus?";)"), "1:20", "%{username}"},
    {"unused-placeholder", de(R"("badgeCount_Badges_two" = "Zwei";)"),
     de(R"("badgeCount_Badges_one" = "Eins"; "badgeCount_Badges_zero" = "Keins";)"), "1:28", "%{badgeCount}"},
    {"unused-placeholder", de(R"("level_left_of_gameCount_one" = "Eins";)"),
     de(R"("level_left_of_gameCount_one" = "%{level} von einem";)"), "1:34", "%{level}"},
    {"repeated-placeholder", de(R"("Kick_username" = "%{username} %{username}?";)"),
     de(R"("badgeCount_Badges_zero" = "%{badgeCount} Abzeichen";)"), "1:20",
     "2 times in the text, in the English one once"},
    {"base-text", table("Base", englishWithout("About").content + R"("About" = "Info";)"),
     table("Base", englishWithout("Coins_one").content + R"("Coins_one" = "One coin";)"), "25:12",
     "\"About\""},
    {"marks", de(R"("b_Rules_b" = "Regeln";)"), de(R"("b_Rules_b" = "Die <b>Regeln</b>";)"), "1:16",
     "fewer <b> tags"},
    {"marks", de(R"("b_Rules_b" = "</b>Regeln<b>";)"), de(R"("b_Rules_b" = "<b>R</b> und <b>S</b>";)"),
     "1:16", "do not pair up"},
    {"marks", de(R"("Be_quick_nBuy_two" = "*Schnell!\nKauf.";)"),
     de(R"("Be_quick_nBuy_two" = "*Schnell!*\n*Kauf*.";)"), "1:24", "do not pair up"},
    {"marks", de(R"("About" = "*Info*";)"), de(R"("About" = "Info";)"), "1:12", "no * marks"},
    {"line-breaks", de(R"("Be_quick_nBuy_two" = "*Schnell!* Kauf.";)"),
     de("\"Be_quick_nBuy_two\" = \"*Schnell!*\nKauf.\";"), "1:24", "is 0, in the English text 1"},
    {"outer-space", de(R"("Download_on" = "Lade bei";)"), de("\"Download_on\" = \"Lade bei\u00A0\";"), "1:18",
     "behind"},
    {"outer-space", de(R"("About" = "\tInfo";)"), de(R"("About" = "In\tfo";)"), "1:12", R"("\t")"},
    {"end-punctuation", de(R"("Kick_username" = "%{username} raus.";)"),
     de(R"("Kick_username" = "%{username} raus？";)"), "1:20",
     "a full stop, the English text in a question mark"},
    {"glossary-term", fr(R"("badgeCount_Badges_two" = "%{badgeCount} points";)"),
     fr("\"badgeCount_Badges_two\" = \"%{badgeCount} vies\u00A0bonus\";"), "1:28", "\"badge\""},
    {"glossary-term", fr(R"("Referral_code_optional" = "Code libre";)"),
     fr(R"("Tap_it_to_use_one" = "Touche"; "Referral_code_optional" = "Code PARRAIN libre";)"), "1:29",
     "Referral"},
    {"glossary-term", fr(R"("badgeCount_Badges_one" = "%{badgeCount} mot";)"),
     fr(R"("badgeCount_Badges_one" = "%{badgeCount} Badge"; "Kick_username" = "Kick %{username}?";)"), "1:28",
     "Badge"},
    {"address", fr(R"("About" = "À votre sujet";)"), fr(R"("About" = "votreté @votre";)"), "1:14", "votre"},
    {"address", fr(R"("About" = "Info s’il vous va";)"), fr(R"("About" = "Info, s’il va";)"), "1:17", "form"},
    {"address", table("sv", R"("About" = "Om Er";)"), table("sv", R"("About" = "Om er";)"), "1:15", "Er"},
    {"address", table("zh", R"("About" = "关于您的";)"), table("zh", R"("About" = "关于你的";)"), "1:12",
     "您"},
    {"quotation-marks", fr("\"Kick_username\" = \"\\\"%{username}\u00A0?\";"),
     fr("\"Kick_username\" = \"«\u00A0%{username}\u00A0»\u00A0?\";"), "1:20", "write «»"},
    {"quotation-marks", fr(R"("About" = "L’‘info";)"), de(R"("About" = "\"Info\"";)"), "1:14", "‘"},
    {"apostrophe", fr(R"("About" = "L'info";)"), fr(R"("About" = "L’info";)"), "1:13", "’"},
    {"ellipsis", de(R"("About" = "In...fo";)"), de(R"("About" = "In..fo";)"), "1:14", "…"},
    {"doubled-blank", de(R"("Top_10" = "Die  10";)"), de("\"Top_10\" = \"Die 10 an\";"), "1:16", "two"},
    {"doubled-blank", de("\"Top_10\" = \"Die\u00A0 10\";"), de("\"Top_10\" = \"Die\u00A010\";"), "1:16",
     "two"},
    {"no-break-space", fr(R"("Kick_username" = "%{username} ?";)"),
     fr("\"Kick_username\" = \"https://zk %{username}\u00A0!?\";"), "1:32", "before"},
    {"no-break-space", fr("\"Kick_username\" = \"«%{username}\u00A0»\u00A0?\";"),
     fr("\"Kick_username\" = \": %{username}\u00A0?\";"), "1:20", "behind"},
    {"no-break-space", fr(R"("Top_10" = "10 pt. x";)"), fr("\"Top_10\" = \"10\u00A0pt. rompt. x\";"), "1:16",
     "\"pt.\""},
    {"doubled-word", fr(R"("About" = "Info INFO";)"), fr(R"("About" = "Nous nous, nous";)"), "1:17",
     "\"Info\""},
    {"doubled-word", de("\"Be_quick_nBuy_two\" = \"*Los!* Kauf\nkauf.\";"),
     table("vi", R"("About" = "dần dần";)"), "2:1", "Kauf"},
    {"mixed-scripts", table("uk", R"("About" = "Прo";)"), table("uk", R"("About" = "Про-o’о";)"), "1:14",
     "\"o\""},
    {"english-words", de(R"("Tap_it_to_use_one" = "Hier: tap it to";)"),
     de(R"("Tap_it_to_use_one" = "Tap it nutzen";)"), "1:24", "\"tap it to\""},
    {"english-words", table("uk", R"("Coins" = "Ваші coins";)"), table("uk", R"("About" = "Ваш About";)"),
     "1:12", "\"coins\""},
    {"same-text", de(R"("About" = "About";)"), de(R"("ZK_Trivia" = "ZK Trivia";)"), "1:12", "\"About\""},
    {"long-text", de(R"("About" = "Alles über alles";)"), de(R"("About" = "Alles über alle";)"), "1:12",
     "16"},
    {"brackets", de(R"("Referral_code_optional" = "Code, optional";)"),
     de(R"("Referral_code_optional" = "代码（可选）";)"), "1:29", "brackets"},
    {"digits", de(R"("Top_10" = "Die 100";)"), de(R"("Top_10" = "أفضل ١٠";)"), "1:13", "\"100\""},
};

TEST(Rules, EachFindsWhatItNamesAndNothingNearIt) {
  for (const auto& [rule, wrong, nearMiss, place, says] : kRuleCases) {
    SCOPED_TRACE(fmt::format("{} in {}\n{}\nnear miss in {}\n{}", rule, wrong.path, wrong.content,
                             nearMiss.path, nearMiss.content));
    const Faults faults = faultsWith(wrong, rule);
    EXPECT_EQ(linesOf(faultsWith(nearMiss, rule)), "");
    if (faults.size() != 1) {
      ADD_FAILURE() << "not one fault:\n" << linesOf(faults);
      continue;
    }
    const Fault& fault = faults.front();
    EXPECT_EQ(fault.rule, rule);
    EXPECT_EQ(fmt::format("{}:{}", fault.line, fault.column), place);
    EXPECT_TRUE(fault.message.find(says) != std::string::npos) << linesOf(faults);
  }
}

TEST(Rules, EachIsShownToWork) {
  std::set<std::string> shown;
  for (const RuleCase& test : kRuleCases) shown.insert(test.rule);
  for (const Rule& rule : checkRules()) EXPECT_TRUE(shown.contains(std::string(rule.name))) << rule.name;
}

}  // namespace
