#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/tools/exchange/ReadBack.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/exchange/Export.h>
#include <ZKStrings/tools/support/Fault.h>
#include <ZKStrings/tools/support/Languages.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace {

using namespace zk::tools;
using zk::testing::readBack;
using zk::testing::TemporaryDirectory;
using zk::testing::unitIn;

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
  constexpr const char* kTexts[] = {
      "Info",
      "  two blanks at both ends  ",
      "one\nline\n\nand more\n",
      "\ttab",
      "\"quoted\", 'too' \\n \\ & < > &amp; <i>",
      "%{a}%{b} <b>x</b> *y*",
      "</b>%{a}*",
      "=1+1",
      "+49",
      "@zk",
      "-",
      "'=1",
      "''@",
      "'tis",
      "＝１",
      "a,b;c\td",
      "msgid \"x\"",
      "ü 日本語 עברית 🎉 e\u0301 \u200E+1",
      "]]> <!-- -->",
  };
  Translations sent{"de", {}};
  int number = 0;
  for (const char* const text : kTexts) {
    const std::string key = fmt::format("key {}, \"x\" & <ü>", ++number);
    const bool isReviewed = number % 3 == 0;
    sent.units.push_back({key,
                          fmt::format("English of {}", text),
                          text,
                          isReviewed ? TranslationState::needsReview : TranslationState::translated,
                          {"A note, with \"quotes\"\nand -- a line."}});
    sent.units.push_back({key + "b", text, "", TranslationState::missing, {}});
  }
  for (const auto& [format, name] : kForms) expectSame(sent, readBack(written(sent, format), name), name);
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

TEST(ExchangeFormat, WritesNothingThatASpreadsheetTakesForAFormula) {
  Translations sent{"de", {}};
  for (const char* const text : {"=1+1", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1", "'=1", "＝1"})
    sent.units.push_back({text, text, text, TranslationState::translated, {text}});
  const std::string table = written(sent, ExchangeFormat::csv);
  constexpr const char* kFormulas[] = {"\"=",  "\"+", "\"-", "\"@", "\"\t", ",\"\r",
                                       "\"＝", ",=",  ",+",  ",-",  ",@"};
  for (const char* const begin : kFormulas)
    EXPECT_EQ(table.find(begin), std::string::npos) << begin << "\n" << table;
}

TEST(ExchangeFormat, RefusesWhatXMLCannotHold) {
  const Translations sent{"de", {{"k", "a\x01", "b", TranslationState::translated, {}}}};
  EXPECT_THROW(static_cast<void>(written(sent, ExchangeFormat::xliff12)), CommandFailed);
  EXPECT_THROW(static_cast<void>(written(sent, ExchangeFormat::xliff20)), CommandFailed);
  expectSame(sent, readBack(written(sent, ExchangeFormat::po), "x.po"), "po");
}

TEST(ExchangeFormat, TakesPOAndCSVOfOtherPrograms) {
  struct Case {
    const char* name;
    const char* bytes;
    const char* read;
  };
  constexpr Case kCases[] = {
      {"a.po", "msgctxt \"k\"\nmsgid \"A\"\nmsgstr \"B\"", "k|A|B|translated"},
      {"a.po",
       "#~ msgid \"x\"\n#~ msgstr \"y\"\n#, fuzzy, c-format\n#| msgid \"old\"\nmsgctxt \"k\"\r\n"
       "msgid \"\"\n\"A\\\"\"\n\"\\t\\101\"\nmsgstr \"B\"\n",
       "k|A\"\tA|B|needs-review"},
      {"a.po", "#: k%20%C3%BC+x other\nmsgctxt \"k ü xk ü x\"\nmsgid \"A\"\nmsgstr \"B\"\n",
       "k ü x|A|B|translated"},
      {"a.po", "#. ts-id k k\nmsgid \"A\"\nmsgstr \"B\"\n", "k k|A|B|translated"},
      {"a.po", "msgid \"A\"\nmsgstr \"B\"\n", "A|A|B|translated"},
      {"a.csv", "key;en;de\nk;A;\"B;\"\"C\"\"\"\n", "k|A|B;\"C\"|translated"},
      {"a.tsv", "de\tcomment\tstate\ten\tkey\r\nB\t\tneeds-review\tA\tk\r\n\t\t\t\t\r\n",
       "k|A|B|needs-review"},
      {"a.csv", "\xEF\xBB\xBFkey,en,de,state\nk,A,'+1,missing", "k|A|+1|translated"},
      {"a.csv", "key,en,de\nk,A\n", "k|A||translated"},
      {"a.csv", "key,en,de\nk,A,\"x\r\ny\"\n", "k|A|x\ny|translated"},
  };
  for (const auto& [name, bytes, read] : kCases) EXPECT_EQ(unitIn(bytes, name), read) << bytes;
}

TEST(ExchangeFormat, SaysWhereAFileIsWrong) {
  struct Case {
    const char* name;
    std::string bytes;
    const char* fault;  ///< the place, and a word of what is wrong
  };
  std::string deep = "<xliff version='1.2'><trans-unit id='k'>\n<source>";
  for (int i = 0; i < 200'000; ++i) deep += "<g id='1'>";
  for (int i = 0; i < 200'000; ++i) deep += "</g>";
  deep += "</source></trans-unit></xliff>";
  const Case cases[] = {
      {"a.xlf", "", "1:1: the file is no XLIFF"},
      {"a.xcstrings", "{}", "1:1: the file is no XLIFF"},
      {"a.xlf", "<xliff version='1.2'>\n<file>", "2:"},
      {"a.xlf", "<xliff version='1.2'>\n</file></xliff>", "2:"},
      {"a.xlf", "<ts version='1.2'/>", "1:1: the document is no XLIFF"},
      {"a.xlf", "<xliff/>", "1:1: the document is no XLIFF"},
      {"a.xlf", "<xliff version='1.2'>\n ü &lol;</xliff>", "2:4: \"&\" begins no entity"},
      {"a.xlf", "<!DOCTYPE x [\n<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]><xliff version='1.2'>&b;</xliff>",
       "1:1: document types"},
      {"a.xlf", "<xliff version='1.2'>\xFF</xliff>", "1:1: the bytes are not text"},
      {"a.xlf", "<xliff version='1.2'><file target-language='de'/>\n<file target-language='fr'/></xliff>",
       "2:1: the file holds translations into \"de\" and into \"fr\""},
      {"a.xlf", "<xliff version='1.2'><trans-unit id='k'><target>\n<x id='9'/></target></trans-unit></xliff>",
       "2:1: the element <x id=\"9\"> stands for nothing"},
      {"a.xlf", deep, "2:"},
      {"a.po", "", "1:1: the file has no entries"},
      {"a.po", "hello", "1:1: expected msgctxt"},
      {"a.po", "msgid \"A\"\nmsgstr \"B", "2:1: the text's closing quote is missing"},
      {"a.po", "msgid \"A\"", "1:1: the last entry has no msgstr"},
      {"a.po", "msgid \"A\"\nmsgid \"B\"", "2:1: msgid without a msgstr"},
      {"a.po", "msgstr \"A\"", "1:1: msgstr without a msgid"},
      {"a.po", "\n \"A\"", "2:2: a text without a keyword"},
      {"a.po", "msgid A", "1:1: write the text in quotes"},
      {"a.po", "msgid \"\\q\"", "1:1: a backslash before"},
      {"a.po", "msgid \"A\"\nmsgid_plural \"B\"", "2:1: plural entries are not taken"},
      {"a.csv", "", "1:1: no column is titled \"key\""},
      {"a.csv", "key,de\n", "1:1: no column is titled \"en\""},
      {"a.csv", "key,en,xyzzy\n", "1:1: no column is titled with the code of a language"},
      {"a.csv", "key,en,de\nk,\"A", "2:3: the closing quote of the cell is missing"},
      {"a.csv", "key,en,de\nk,\"A\"B,C", "2:6: text behind the cell's closing quote"},
  };
  for (const auto& [name, bytes, fault] : cases) {
    try {
      static_cast<void>(readBack(bytes, name));
      ADD_FAILURE() << "taken: " << bytes.substr(0, 100);
    } catch (const CommandFailed& failed) {
      ASSERT_EQ(failed.faults.size(), 1u);
      const Fault& told = failed.faults[0];
      const std::string shown = fmt::format("{}:{}: {}", told.line, told.column, told.message);
      EXPECT_TRUE(shown.starts_with(fault)) << shown << "\n" << bytes.substr(0, 100);
    }
  }
}

// It would take minutes if each row were as much work as the line of titles is long, or if languages were looked up
// anew for each title.
TEST(ExchangeFormat, ReadsShortRowsUnderManyTitles) {
  std::string table = "key,en";
  for (int title = 0; title < 100'000; ++title) table += ",c" + std::to_string(title);
  table += ",de";
  for (int row = 0; row < 100'000; ++row) table += "\nk,A";
  EXPECT_EQ(readBack(table, "a.csv").units.size(), 100'000u);
}

TEST(ExchangeFormat, RefusesFilesThatAreNoFilesOrTooLarge) {
  const TemporaryDirectory directory;
  const std::string large = directory.write("large.xlf", "<");
  std::filesystem::resize_file(large, (32U << 20U) + 1);
  for (const std::string& path :
       {directory.path(), directory.path() + "/none.po", large, std::string("/dev/zero")})
    EXPECT_THROW(static_cast<void>(readTranslations(path)), CommandFailed) << path;
}

}  // namespace
