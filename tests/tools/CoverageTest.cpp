#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/Coverage.h>
#include <ZKStrings/tools/Fault.h>

#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

Coverage coverageOfGerman(const std::string& table) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), table);
  return coverageOf(project.root()).at(1);
}

TEST(Coverage, CountsTextsThatAreLookedUpAndNotEmpty) {
  struct Case {
    const char* table;
    std::size_t there;
    std::size_t missingPluralForms;
    bool isWellFormed = true;
  };
  constexpr Case kCases[] = {
      {"", 0, 15},
      {R"("About" = "Info"; "Coins" = "Geld";)", 2, 15},
      {R"("Coins_one" = "Taler"; "Coins_two" = "Taler";)", 2, 13},
      {R"("About" = ""; "Coins_one" = "";)", 0, 15},
      {R"("badgeCount_Badges" = "nie gesucht"; "Abuot" = "falsch";)", 0, 15},
      {R"("About" = ""; "About" = "Info";)", 1, 15},
      {R"("About" = "Info"; "About" = "";)", 0, 15},
      {R"("About" = "Info"; "Coins" = )", 0, 15, false},
  };
  for (const auto& [table, there, missingPluralForms, isWellFormed] : kCases) {
    const Coverage coverage = coverageOfGerman(table);
    EXPECT_EQ(coverage.there, there) << table;
    EXPECT_EQ(coverage.missing, 25 - there) << table;
    EXPECT_EQ(coverage.missingPluralForms, missingPluralForms) << table;
    EXPECT_EQ(coverage.isWellFormed, isWellFormed) << table;
  }
}

TEST(Coverage, IsComplete100PercentOnly) {
  EXPECT_EQ((Coverage{"de", 1000, 0, 0}).percent(), 100u);
  EXPECT_EQ((Coverage{"de", 999, 1, 0}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 0, 1, 0}).percent(), 0u);
}

TEST(Coverage, IsShownInAlignedLines) {
  EXPECT_EQ(formatted({{"Base", 1068, 0, 0}, {"de", 537, 531, 260}, {"fr", 0, 1068, 260, false}}),
            "Base   1068 there      0 missing,    0 of them plural forms  100%  [####################]\n"
            "de      537 there    531 missing,  260 of them plural forms   50%  [##########----------]\n"
            "fr        0 there   1068 missing,  260 of them plural forms    0%  [--------------------]"
            "  no well-formed table: see zkstrings check\n");
}

TEST(Coverage, IsShownAsJson) {
  const auto json =
      nlohmann::json::parse(toJson(std::vector<Coverage>{{"de", 3, 1, 1}, {"fr", 0, 4, 2, false}}));
  EXPECT_EQ(json, nlohmann::json::parse(R"([
    {"language": "de", "there": 3, "missing": 1, "missingPluralForms": 1, "percent": 75, "wellFormed": true},
    {"language": "fr", "there": 0, "missing": 4, "missingPluralForms": 2, "percent": 0, "wellFormed": false}])"));
}

}  // namespace
