#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/support/Fault.h>
#include <ZKStrings/tools/translation/Coverage.h>

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

TEST(Coverage, CountsTextsByTheirState) {
  struct Case {
    const char* table;
    std::size_t translated;
    std::size_t untranslated = 0;
    std::size_t needsReview = 0;
    bool isWellFormed = true;
  };
  constexpr Case kCases[] = {
      {"", 0},
      {R"("About" = "Info"; "Coins" = "Geld";)", 2},
      {R"("Coins_one" = "Taler"; "Coins_two" = "Taler";)", 2},
      {R"("About" = ""; "Coins_one" = " ";)", 0, 2},
      {R"("badgeCount_Badges" = "nie gesucht"; "Abuot" = "falsch";)", 0},
      {R"("About" = ""; "About" = "Info";)", 1},
      {R"("About" = "Info"; "About" = "";)", 0, 1},
      {R"("About" = "About"; "Tap_it_to_use_one" = "Tap it to use one";)", 1, 1},
      {R"("About" = "Info"; /* state: needs-review */ "Coins" = "Geld";)", 1, 0, 1},
      {R"("About" = "Info"; "Coins" = )", 0, 0, 0, false},
  };
  for (const auto& [table, translated, untranslated, needsReview, isWellFormed] : kCases) {
    const Coverage coverage = coverageOfGerman(table);
    EXPECT_EQ(coverage.translated, translated) << table;
    EXPECT_EQ(coverage.untranslated, untranslated) << table;
    EXPECT_EQ(coverage.needsReview, needsReview) << table;
    EXPECT_EQ(coverage.missing, 25 - translated - untranslated - needsReview) << table;
    EXPECT_EQ(coverage.isWellFormed, isWellFormed) << table;
  }
}

TEST(Coverage, IsComplete100PercentOnly) {
  EXPECT_EQ((Coverage{"de", 1000}).percent(), 100u);
  EXPECT_EQ((Coverage{"de", 999, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 999, 0, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 999, 0, 0, 1}).percent(), 99u);
  EXPECT_EQ((Coverage{"de", 0, 0, 0, 1}).percent(), 0u);
}

TEST(Coverage, IsShownInAlignedLines) {
  const std::string lines =
      formatted({{"Base", 1068}, {"de", 537, 9, 22, 500}, {"fr", 0, 0, 0, 1068, false}});
  EXPECT_EQ(lines,
            "language  translated to review  untranslated  missing\n"
            "Base            1068         0             0        0   100%  ###############\n"
            "de               537         9            22      500    50%  #######--------\n"
            "fr                 0         0             0     1068     0%  see check\n");
}

TEST(Coverage, IsShownAsJson) {
  const auto json =
      nlohmann::json::parse(toJson(std::vector<Coverage>{{"de", 3, 1, 2, 0}, {"fr", 0, 0, 0, 4, false}}));
  EXPECT_EQ(json, nlohmann::json::parse(R"([
    {"language": "de", "translated": 3, "needsReview": 1, "untranslated": 2, "missing": 0, "percent": 50,
     "wellFormed": true},
    {"language": "fr", "translated": 0, "needsReview": 0, "untranslated": 0, "missing": 4, "percent": 0,
     "wellFormed": false}])"));
}

}  // namespace
