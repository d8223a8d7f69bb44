#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryDirectory;

namespace fs = std::filesystem;

std::string accented(const std::string& text, std::string_view suffix = "") {
  const Entry entry{"key", text, !suffix.empty()};
  return accentedText({"key", &entry, suffix, text, nullptr});
}

std::string mirrored(const std::string& text, std::string_view suffix = "") {
  const Entry entry{"key", text, !suffix.empty()};
  return mirroredText({"key", &entry, suffix, text, nullptr});
}

TEST(PseudoLocales, AccentAndLengthenLettersOnly) {
  struct Case {
    const char* english;
    const char* accented;
  };
  constexpr Case kCases[] = {
      {"About", "⟦ÅÅƀööûţţ⟧"},
      {"Kick %{username}?", "⟦ĶĶîççķ %{username}?⟧"},
      {"<b>Rules</b>", "⟦<b>ŔŔûļļéšš</b>⟧"},
      {"*Be quick!*\nBuy two.", "⟦*ƁƁé ǫǫûîîçķķ!*\nƁûûý ţţŵöö.⟧"},
      {"Download on ", "⟦ĐĐöŵŵñļļöååđ ööñ⟧ "},
      {"TV", "⟦ŢŢṼ⟧"},
      {"1:1", "⟦1:1⟧"},
      {"%{a}/%{b}", "⟦%{a}/%{b}⟧"},
      {" ", " ⟦⟧"},
  };
  for (const auto& [english, expected] : kCases) EXPECT_EQ(accented(english), expected) << english;
  EXPECT_EQ(accented("%{n} Coins", "_few"), "⟦%{n} ÇÇöîîñšš ·few⟧");
}

TEST(PseudoLocales, ReverseEachWord) {
  EXPECT_EQ(mirrored("Kick %{username}"), "\u200F\u202EKick\u202C %{username}\u200F");
  EXPECT_EQ(mirrored("<b>A</b>  b\nc "),
            "\u200F<b>\u202EA\u202C</b>  \u202Eb\u202C\u200F\n\u200F\u202Ec\u202C\u200F ");
  EXPECT_EQ(mirrored("%{n} Coins", "_one"), "\u200F%{n} \u202ECoins\u202C \u202E·one\u202C\u200F");
}

/// The project's resources and the pseudo-locales, as an app sees them.
class PseudoTables : public ::testing::Test {
 protected:
  PseudoTables() : resources_(directory_.path() + "/resources") {
    fs::create_directories(directory_.path() + "/catalogue");
    fs::copy(std::string(ZK_PROJECT_ROOT) + "/catalogue/entries.json", directory_.path() + "/catalogue/");
    writePseudoLocales(ZK_PROJECT_ROOT, resources_);
  }

  TemporaryDirectory directory_;
  const std::string resources_;
};

TEST_F(PseudoTables, PassTheChecksOfTranslations) {
  // They keep English dots, and no other language chooses their directories.
  const CheckOptions options{
      .languages = {"xa", "xb"},
      .off = {"language-directory", "end-punctuation", "ellipsis", "apostrophe", "english-words"},
      .notes = false};
  for (const Diagnostic& diagnostic : check(directory_.path(), options).diagnostics)
    ADD_FAILURE() << formatted(diagnostic, false);
}

TEST_F(PseudoTables, AreAThirdLonger) {
  const Catalogue catalogue = Catalogue::read(ZK_PROJECT_ROOT);
  const EnglishTexts english(catalogue, Table::read(ZK_PROJECT_ROOT, kBase));
  const Table table = Table::read(directory_.path(), "xa");
  const auto lettersOf = [](std::string_view text) { return charactersIn(withoutPlaceholders(text)); };
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

}  // namespace
