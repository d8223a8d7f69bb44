#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/exchange/Exchange.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/support/Languages.h>

#include <cstddef>
#include <string>
#include <string_view>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

Translations readBack(std::string_view bytes, const std::string& name) {
  const zk::testing::TemporaryDirectory directory;
  return readTranslations(directory.write(name, bytes));
}

struct Form {
  ExchangeFormat format;
  const char* name;
};
constexpr Form kForms[] = {{ExchangeFormat::xliff12, "12.xlf"},
                           {ExchangeFormat::xliff20, "20.xliff"},
                           {ExchangeFormat::po, "x.po"},
                           {ExchangeFormat::csv, "x.csv"}};

void expectSame(const Translations& sent, const Translations& back, const std::string& about) {
  EXPECT_EQ(back.language, sent.language) << about;
  ASSERT_EQ(back.units.size(), sent.units.size()) << about;
  for (std::size_t i = 0; i < sent.units.size(); ++i) {
    const std::string where = about + " " + sent.units[i].key;
    EXPECT_EQ(back.units[i].key, sent.units[i].key) << where;
    EXPECT_EQ(back.units[i].source, sent.units[i].source) << where;
    EXPECT_EQ(back.units[i].target, sent.units[i].target) << where;
    if (!sent.units[i].target.empty()) {
      EXPECT_EQ(back.units[i].state, sent.units[i].state) << where;
    }
  }
}

TEST(ExchangeFormat, ReadsWhatItWrites) {
  Translations sent{"de", {}};
  for (const auto& [text] : zk::testing::rowsOf<std::string>("tools/exchange/ExchangeFormatTest.json")) {
    const std::string key = fmt::format("key {}, \"x\" & <ü>", sent.units.size());
    const std::string english = fmt::format("English of {}", text);
    sent.units.push_back({key, english, text, TranslationState::translated, "A \"note\"\nand -- a line."});
    sent.units.push_back({key + "b", english, text, TranslationState::needsReview, {}});
    sent.units.push_back({key + "c", text, "", TranslationState::missing, {}});
  }
  for (const auto& [format, name] : kForms) expectSame(sent, readBack(written(sent, format), name), name);
  sent.units = {{"k", "a\rb", "\r\na\r\n", TranslationState::translated, {}}};
  expectSame(sent, readBack(written(sent, ExchangeFormat::po), "a.po"), "a.po");
  // Programs that save CSV choose the line endings within cells.
  const Translations csv = readBack(written(sent, ExchangeFormat::csv), "a.csv");
  EXPECT_EQ(csv.units[0].target, "\na\n");
}

TEST(ExchangeFormat, KeepsAllShippedTexts) {
  const std::string root = ZK_PROJECT_ROOT;
  for (const std::string& language : languagesIn(root)) {
    if (language == kBase) continue;
    const Translations sent = translationsOf(root, language, false);
    ASSERT_FALSE(sent.units.empty());
    for (const auto& [format, name] : kForms)
      expectSame(sent, readBack(written(sent, format), name), language + " " + name);
  }
}

TEST(ExchangeFormat, WritesNoFormulasForSpreadsheets) {
  Translations sent{"de", {}};
  for (const char* const text : {"=1+1", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1", "'=1", "＝1", "a\n=1",
                                 "a;=1", "a\n\"=1", "\"\u0301,=1", "a\n;\t=1"})
    sent.units.push_back({text, text, text, TranslationState::translated, text});
  const std::string table = written(sent, ExchangeFormat::csv);
  constexpr const char* kFormulas[] = {",\"=",    ",\"+", ",\"-", ",\"@", ",\"\t",  ",\"\r", ",\"＝", "\n=",
                                       "\n\"\"=", "\t=",  "\n\t", ";=",   ",\"\"=", "\n;=",  ";\t"};
  for (const char* const begin : kFormulas)
    EXPECT_EQ(table.find(begin), std::string::npos) << begin << "\n" << table;
}

// This takes minutes if the work for each row grows with the number of titles, or if all languages are read again for
// each title.
TEST(ExchangeFormat, ReadsShortRowsUnderManyTitles) {
  std::string table = "key,en";
  for (int title = 0; title < 100'000; ++title) table += ",c" + std::to_string(title);
  table += ",de";
  for (int row = 0; row < 100'000; ++row) table += "\nk,A";
  EXPECT_EQ(readBack(table, "a.csv").units.size(), 100'000u);
}

}  // namespace
