#include <ZKStrings/tests/tools/check/FaultyFile.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using namespace zk::testing;

TEST(Check, AllFaultsOfAFileAreFoundInOneGo) {
  const File file =
      de("\"About\" = \"\xFC\";\n"
         "\"Coins\" \"Geld\";\n"
         "\"Top_10\" = \"10\\q\";\n"
         "\"Top_11\" = \"Elf\";\n"
         "\"Kick_username\" = \"%{usernames} raus.\";\n"
         "\"ZK_Trivia\" = \"\xFF\"");
  std::string rules;
  for (const Fault& fault : faultsWith(file)) rules += fmt::format("{}:{} ", fault.line, fault.rule);
  EXPECT_EQ(
      rules,
      "1:encoding 2:table-syntax 3:unknown-escape 4:unknown-key 5:unknown-placeholder 5:end-punctuation "
      "6:encoding 6:table-syntax ");
}

TEST(Check, ACommentSwitchesRulesOffForTheEntryBehindIt) {
  struct Case {
    const char* comments;
    const char* rules;  ///< those that still find something
  };
  constexpr Case kCases[] = {
      {"", "marks end-punctuation "},
      {"/* check: off marks */", "end-punctuation "},
      {"// check: off end-punctuation", "marks "},
      {"/* check: off marks end-punctuation */", ""},
      {"/* check: off marks, end-punctuation */", ""},
      {"/* check: off marks */ /* English: \"About\" */\n/*check: off end-punctuation*/", ""},
      {"/* check: off mark */", "marks end-punctuation "},
      {"/* marks are off here, check: off marks */", "marks end-punctuation "},
      {"/* check: off marks */ \"Coins\" = \"Geld\";", "marks end-punctuation "},
  };
  for (const auto& [comments, expected] : kCases) {
    std::string rules;
    for (const Fault& fault : faultsWith(de(fmt::format("{}\n\"About\" = \"*Info.\";", comments)))) {
      rules = fault.rule + " " + rules;
    }
    EXPECT_EQ(rules, expected) << comments;
  }
}

TEST(Check, LanguagesLimitWhatIsChecked) {
  const TemporaryProject project;
  for (const char* const language : {"de", "fr", "Base"}) {
    project.write(TemporaryProject::table(language), "\"Abuot\" = \"\";");
  }
  project.write(TemporaryProject::kCountries, "");
  std::set<std::string> files;
  for (const Fault& fault : check(project.root(), {{"fr", "de"}, {}, false}).faults) files.insert(fault.file);
  EXPECT_EQ(files, (std::set<std::string>{TemporaryProject::table("de"), TemporaryProject::table("fr")}));
}

TEST(Check, FaultsAreSortedByPlace) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("fr"), "\"About\" = \"*\";\n\"Abuot\" = \"\\q\";\n\"Coins\" = \"\";");
  project.write(TemporaryProject::table("de"), "\"Coins\" = \"*\";");
  const Faults faults = check(project.root(), {}).faults;
  const auto isBefore = [](const Fault& one, const Fault& other) {
    return std::tie(one.file, one.line, one.column) < std::tie(other.file, other.line, other.column);
  };
  EXPECT_TRUE(std::is_sorted(faults.begin(), faults.end(), isBefore)) << linesOf(faults);
  EXPECT_EQ(faults.size(), 8u) << linesOf(faults);
}

TEST(Check, AWrongCatalogueHidesNoFaultOfATable) {
  const TemporaryProject project;
  project.write(TemporaryProject::kCatalogue, "[\n  {\"key\": \"Aboot\", \"text\": \"About\"}\n]\n");
  project.write(TemporaryProject::table("de"), "\"About\" = ;");
  const Faults faults = check(project.root(), {}).faults;
  ASSERT_EQ(faults.size(), 2u) << linesOf(faults);
  EXPECT_EQ(faults[0].file, TemporaryProject::kCatalogue);
  EXPECT_EQ(faults[1].rule, "table-syntax");
}

TEST(Check, SomePluralFormsMaySpellTheirNumber) {
  const TemporaryProject project;
  std::string lines;
  for (const char* const suffix : {"zero", "one", "two", "few"}) {
    project.write(TemporaryProject::table("Base"), project.read(TemporaryProject::table("Base")) +
                                                       fmt::format("\"Coins_{}\" = \"12 Coins\";\n", suffix));
    lines += fmt::format("\"Coins_{}\" = \"Dutzend\";\n", suffix);
  }
  lines += "\"Coins_one\" = \"13\";";
  project.write(TemporaryProject::table("de"), lines);
  std::string found;
  for (const Fault& fault : check(project.root(), {{"de"}, {}, false}).faults) {
    if (fault.rule == "digits") found += fmt::format("{} ", fault.line);
  }
  EXPECT_EQ(found, "4 5 ");
}

TEST(Check, AFaultyGlossaryIsToldAndHidesNothing) {
  const TemporaryProject project;
  project.write(Glossary::kFile, "{\n  \"terms\": 5\n}");
  project.write(TemporaryProject::table("de"), "\"About\" = ;");
  const Faults faults = check(project.root(), {}).faults;
  ASSERT_EQ(faults.size(), 2u) << linesOf(faults);
  EXPECT_EQ(formatted(faults[1], false).substr(0, 38), "resources/glossary.json:2:12: error: w");
}

TEST(Check, PluralFormsOfTheEnglishTableAreHeldAgainstTheCatalogue) {
  const std::string rest = englishWithout("badgeCount_Badges_two").content;
  const Faults faults =
      faultsWith(table("Base", rest + "\"badgeCount_Badges_two\" = \"Two %{badgeCounts}!\";"));
  std::string rules;
  for (const Fault& fault : faults) rules += fault.rule + " ";
  EXPECT_EQ(rules, "end-punctuation unknown-placeholder ") << linesOf(faults);
}

}  // namespace
