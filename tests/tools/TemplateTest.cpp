#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/Coverage.h>
#include <ZKStrings/tools/Template.h>
#include <ZKStrings/tools/check/Checker.h>

#include <filesystem>
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
  {"key": "n_Coins_of_name", "text": "%{n} Coins of %{name}", "plural": true}
]
)",
                                               "entries.json");
  const Table base = Table::parse(R"("n_Coins_of_name_zero" = "%{name} has no Coins";)", "Base");
  const std::string written = templateFor("de", EnglishTexts(catalogue, base));
  EXPECT_EQ(written.substr(written.find('\n') + 1), R"(
/* English: "*Be \"quick\"* /\n\tGo" */
"Be_quick_n_tGo" = "*Be \"quick\"*/\n\tGo";

/* English: "%{name} has no Coins"; placeholders: %{name}, %{n} */
"n_Coins_of_name_zero" = "%{name} has no Coins";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
"n_Coins_of_name_one" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
"n_Coins_of_name_two" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
"n_Coins_of_name_few" = "%{n} Coins of %{name}";

/* English: "%{n} Coins of %{name}"; placeholders: %{n}, %{name} */
"n_Coins_of_name_many" = "%{n} Coins of %{name}";
)");
}

TEST(Template, OfWhatShipsIsCompleteAndRight) {
  const TemporaryProject project;
  for (const char* const part : {"catalogue/entries.json", "resources/Base.lproj/Localizable.strings"}) {
    std::filesystem::copy_file(std::filesystem::path(ZK_PROJECT_ROOT) / part,
                               std::filesystem::path(project.root()) / part,
                               std::filesystem::copy_options::overwrite_existing);
  }
  writeTemplate(project.root(), "sw");
  EXPECT_EQ(coverageOf(project.root()).at(1).percent(), 100u);
  for (const Fault& fault : check(project.root(), {{"sw"}, {}, false}))
    ADD_FAILURE() << formatted(fault, false);
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
  project.write(TemporaryProject::table("Base"), "\"About\"");
  EXPECT_TRUE(isRefused(project, "fr", "expected"));
  EXPECT_FALSE(std::filesystem::exists(project.root() + "/resources/fr.lproj"));
}

}  // namespace
