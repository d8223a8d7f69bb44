#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/layout/PseudoLanguages.h>
#include <ZKStrings/tools/support/Fault.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/texts/TextSize.h>

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryDirectory;
using zk::testing::TemporaryProject;

namespace fs = std::filesystem;

std::string accented(const std::string& text, std::string_view suffix = "") {
  const Entry entry{"key", text, !suffix.empty()};
  return accentedText({"key", &entry, suffix, text});
}

std::string mirrored(const std::string& text, std::string_view suffix = "") {
  const Entry entry{"key", text, !suffix.empty()};
  return mirroredText({"key", &entry, suffix, text});
}

TEST(PseudoLanguages, AccentAndLengthenLettersAlone) {
  struct Case {
    const char* english;
    const char* accented;
  };
  constexpr Case kCases[] = {
      {"About", "⟦Åƀööûûţ⟧"},
      {"Kick %{username}?", "⟦Ķîîîçķ %{username}?⟧"},
      {"<b>Rules</b>", "⟦<b>Ŕûûļééš</b>⟧"},
      {"*Be quick!*\nBuy two.", "⟦*Ɓéé ǫûûîîçķ!*\nƁûûý ţŵööö.⟧"},
      {"Download on ", "⟦Đööŵñļööååđ ööñ⟧ "},
      {"TV", "⟦ŢṼṼ⟧"},
      {"1:1", "⟦1:1⟧"},
      {"%{a}/%{b}", "⟦%{a}/%{b}⟧"},
      {" ", " ⟦⟧"},
  };
  for (const auto& [english, expected] : kCases) EXPECT_EQ(accented(english), expected) << english;
  EXPECT_EQ(accented("%{n} Coins", "_few"), "⟦%{n} Çööîîñš ·few⟧");
}

TEST(PseudoLanguages, TurnEachWordAround) {
  EXPECT_EQ(mirrored("Kick %{username}"), "\u200F\u202EKick\u202C %{username}\u200F");
  EXPECT_EQ(mirrored("<b>A</b>  b\nc "),
            "\u200F<b>\u202EA\u202C</b>  \u202Eb\u202C\u200F\n\u200F\u202Ec\u202C\u200F ");
  EXPECT_EQ(mirrored("%{n} Coins", "_one"), "\u200F%{n} \u202ECoins\u202C \u202E·one\u202C\u200F");
}

/// The project's resources and the pretend languages, as an app sees them.
class PseudoTables : public ::testing::Test {
 protected:
  PseudoTables() : resources_(directory_.path() + "/resources") {
    fs::create_directories(directory_.path() + "/catalogue");
    fs::copy(std::string(ZK_PROJECT_ROOT) + "/catalogue/entries.json", directory_.path() + "/catalogue/");
    writePseudoLanguages(ZK_PROJECT_ROOT, resources_);
  }

  TemporaryDirectory directory_;
  const std::string resources_;
};

TEST_F(PseudoTables, KeepAllThatTranslationsMustKeep) {
  // Their dots are the English ones, and no app of another language chooses them.
  const CheckOptions options{
      .languages = {"xa", "xb"},
      .off = {"language-directory", "end-punctuation", "ellipsis", "apostrophe", "english-words"},
      .notes = false};
  for (const Fault& fault : check(directory_.path(), options).faults)
    ADD_FAILURE() << formatted(fault, false);
}

TEST_F(PseudoTables, AreAThirdLongerInReadersEyes) {
  const Catalogue catalogue = Catalogue::read(ZK_PROJECT_ROOT);
  const EnglishTexts english(catalogue, Table::read(ZK_PROJECT_ROOT, kBase));
  const Table table = Table::read(directory_.path(), "xa");
  const auto lettersOf = [](std::string_view text) { return sizeOf(withoutPlaceholders(text)).characters; };
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = table.find(text.key);
    ASSERT_TRUE(entry) << text.key;
    const std::size_t added = 2 + (text.suffix.empty() ? 0 : 1 + text.suffix.size());  // brackets and form
    const std::string letters = withoutPlaceholders(text.text);
    const bool hasLetters = std::any_of(letters.begin(), letters.end(), [](char letter) {
      return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    });
    if (!hasLetters) continue;
    constexpr std::size_t kMarks = 14;  // two pairs of <b>, which do not count
    EXPECT_GE(3 * (lettersOf(entry->text) - added) + kMarks, 4 * lettersOf(text.text)) << entry->text;
  }
}

TEST(PseudoLanguages, AreNeverWrittenIntoWhatIsShipped) {
  const TemporaryProject project;
  const TemporaryDirectory elsewhere;
  const std::string link = elsewhere.path() + "/link";
  fs::create_directory_symlink(project.root() + "/resources", link);
  for (const std::string& directory :
       {project.root() + "/resources", project.root() + "/resources/",
        project.root() + "/catalogue/../resources/deeper", link, link + "/new"}) {
    EXPECT_THROW(writePseudoLanguages(project.root(), directory), CommandFailed) << directory;
  }
  EXPECT_EQ(languagesIn(project.root()), std::vector<std::string>{"Base"});
}

TEST(PseudoLanguages, BringTheOtherResourcesUpToDate) {
  const TemporaryProject project;
  const TemporaryDirectory elsewhere;
  const std::string copy = elsewhere.path() + "/share/ZKStrings";
  writePseudoLanguages(project.root(), copy);
  project.write(TemporaryProject::table("de"), "\"About\" = \"Info\";\n");
  writePseudoLanguages(project.root(), copy);
  EXPECT_EQ(readFile(copy, "de.lproj/Localizable.strings"), "\"About\" = \"Info\";\n");
  EXPECT_EQ(readFile(copy, "countries.json"), project.read(TemporaryProject::kCountries));
  EXPECT_NE(readFile(copy, "xb.lproj/Localizable.strings").find("\"Coins_many\""), std::string::npos);
}

TEST(PseudoLanguages, AreNotMadeOfAFaultyTable) {
  const TemporaryProject project;
  const TemporaryDirectory elsewhere;
  project.write(TemporaryProject::table("Base"), "\"About\" = ");
  EXPECT_THROW(writePseudoLanguages(project.root(), elsewhere.path()), CommandFailed);
  EXPECT_TRUE(fs::is_empty(elsewhere.path()));
}

}  // namespace
