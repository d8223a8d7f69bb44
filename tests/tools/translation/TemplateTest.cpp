#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/translation/Coverage.h>
#include <ZKStrings/tools/translation/Template.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryProject;

/// Whether writing a template for `language` is refused with a message that says `reason`.
testing::AssertionResult isRefused(const TemporaryProject& project, const std::string& language,
                                   const std::string& reason) {
  try {
    writeTemplate(project.root(), language);
  } catch (const CommandFailed& failed) {
    const std::string& message = failed.faults.at(0).message;
    if (message.find(reason) != std::string::npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "refused for another reason: " << message;
  }
  return testing::AssertionFailure() << "not refused";
}

TEST(Template, HoldsEachTextUnderItsExplanation) {
  const Catalogue catalogue = Catalogue::parse(R"([
  {"key": "Be_quick_n_tGo", "text": "*Be \"quick\"*/\n\tGo"},
  {"key": "n_Coins_of_name", "text": "%{n} Coins of %{name}", "plural": true},
  {"key": "n_ZK", "text": "%{n} ZK"}
]
)",
                                               "entries.json");
  const Table base = Table::parse(R"("n_Coins_of_name_zero" = "%{name} has no Coins";)", "Base");
  const std::string written = templateFor("de", EnglishTexts(catalogue, base));
  EXPECT_EQ(written.substr(written.find('\n') + 1), R"(
/* English: "*Be \"quick\"* /\n\tGo" */
/* state: untranslated */
"Be_quick_n_tGo" = "*Be \"quick\"*/\n\tGo";

/* English: "%{name} has no Coins"; placeholders: %{name}, %{n} */
/* state: untranslated */
"n_Coins_of_name_zero" = "%{name} has no Coins";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
/* state: untranslated */
"n_Coins_of_name_one" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
/* state: untranslated */
"n_Coins_of_name_two" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
/* state: untranslated */
"n_Coins_of_name_few" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
/* state: untranslated */
"n_Coins_of_name_many" = "%{n} Coins of %{name}";

/* English: "%{n} ZK"; placeholders: %{n} */
"n_ZK" = "%{n} ZK";
)");
}

TEST(Template, OfWhatShipsIsRightButNoTranslation) {
  const TemporaryProject project;
  for (const char* const part : {"catalogue/entries.json", "resources/Base.lproj/Localizable.strings"}) {
    std::filesystem::copy_file(std::filesystem::path(ZK_PROJECT_ROOT) / part,
                               std::filesystem::path(project.root()) / part,
                               std::filesystem::copy_options::overwrite_existing);
  }
  writeTemplate(project.root(), "sw");
  const Coverage coverage = coverageOf(project.root()).at(1);
  EXPECT_EQ(coverage.missing, 0u);
  EXPECT_GT(coverage.untranslated, 1000u);
  EXPECT_LE(coverage.percent(), 1u);
  const Faults faults = check(project.root(), {{"sw"}, {}, false}).faults;
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].rule, "untranslated");
}

TEST(Template, IsRefusedWhereItWouldHarmOrHelpNobody) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"Info\";\n");
  EXPECT_TRUE(isRefused(project, "de", "is there already"));
  EXPECT_EQ(project.read(TemporaryProject::table("de")), "\"About\" = \"Info\";\n");
  EXPECT_TRUE(isRefused(project, "Base", "is there already"));
  EXPECT_TRUE(isRefused(project, "en", "Base.lproj"));
  EXPECT_TRUE(isRefused(project, "pt-BR", "name it pt.lproj"));
  EXPECT_TRUE(isRefused(project, "../x", "never chooses"));
  EXPECT_THROW(writeTemplate(project.root(), ""), std::invalid_argument);
  project.write(TemporaryProject::table("Base"), "\"About\"");
  EXPECT_TRUE(isRefused(project, "fr", "expected"));
  EXPECT_FALSE(std::filesystem::exists(project.root() + "/resources/fr.lproj"));
}

}  // namespace
