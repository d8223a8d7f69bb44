#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::TemporaryDirectory;

TEST(PseudoLocales, ChangeLettersOnly) {
  using Text = std::string;
  for (const auto& [text, suffix, accented, mirrored] :
       zk::testing::rowsOf<Text, Text, Text, Text>("tools/layout/PseudoLocalesTest.json")) {
    const auto* const form =
        std::find_if(std::begin(kPluralForms), std::end(kPluralForms),
                     [&, &name = suffix](const PluralForm& one) { return one.suffix == name; });
    const Entry entry{"key", text, !suffix.empty()};
    const EnglishText english{"key", &entry, suffix.empty() ? nullptr : form, text, nullptr};
    EXPECT_EQ(accentedText(english), accented);
    EXPECT_EQ(mirroredText(english), mirrored);
  }
}

/// The project's resources and the pseudo-locales, as an app sees them.
class PseudoTables : public ::testing::Test {
 protected:
  PseudoTables() : resources_(directory_.path() + "/resources") {
    directory_.write(Catalogue::kFile, readFile(ZK_PROJECT_ROOT, Catalogue::kFile));
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
  const EnglishTexts english(catalogue);
  const Table table = Table::read(directory_.path(), "xa");
  const auto lettersOf = [](std::string_view text) { return charactersIn(withoutPlaceholders(text)); };
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = table.find(text.key);
    ASSERT_TRUE(entry) << text.key;
    const std::size_t added = 2 + (text.form ? 1 + text.form->suffix.size() : 0);  // brackets and form
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
