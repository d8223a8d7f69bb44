#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

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

// They keep English dots, and no other language chooses their directories.
TEST(PseudoLocales, PassTheChecksOfTranslations) {
  const zk::testing::TemporaryDirectory directory;
  directory.write(Catalogue::kFile, readFile(ZK_PROJECT_ROOT, Catalogue::kFile));
  writePseudoLocales(ZK_PROJECT_ROOT, directory.path() + "/resources");
  const CheckOptions options{
      .languages = {"xa", "xb"},
      .off = {"language-directory", "end-punctuation", "ellipsis", "apostrophe", "english-words"},
      .notes = false};
  for (const Diagnostic& diagnostic : check(directory.path(), options).diagnostics)
    ADD_FAILURE() << formatted(diagnostic, false);
}

}  // namespace
