#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/adoption/Adoption.h>
#include <ZKStrings/tools/adoption/PositionalText.h>
#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

TEST(PositionalText, PlaceholdersGetNamesByTheirPlace) {
  constexpr std::pair<std::string_view, std::string_view> kCases[] = {
      {"no arguments, 100% and %%", "no arguments, 100% and %%"},
      {"%@", "%{value}"},
      {"%@ has %d", "%{first} has %{second}"},
      {"%2$@ of %1$ld", "%{second} of %{first}"},
      {"%1$@ and %1$@", "%{value} and %{value}"},
      {"%.2f%% of %lu", "%{first}% of %{second}"},
      {"%-10s|%+5d|%llu", "%{first}|%{second}|%{third}"},
      {"%*d of %-*.*f", "%{second} of %{fifth}"},
      {"100 % de", "100 % de"},
      {"%{name} and %@", "%{name} and %{value}"},
      {"%", "%"},
      {"%1$", "%1$"},
      {"%0$@", "%0$@"},
      {"%99999999999999999999$@", "%99999999999999999999$@"},
      {"%#@", "%#@"}};
  for (const auto& [source, expected] : kCases) {
    const auto pieces = formatPiecesOf(source);
    EXPECT_EQ(withNames(pieces, argumentsOf(pieces)), expected) << source;
  }
}

/// An app with tables of its own, and a catalogue that they are brought into.
class AdoptionOf : public ::testing::Test {
 protected:
  AdoptionOf() { initCatalogue(root(), {"Texts", ""}); }
  [[nodiscard]] std::string root() const { return directory_.path() + "/texts"; }
  [[nodiscard]] std::string english() const { return directory_.path() + "/en.lproj/Localizable.strings"; }

  void write(const std::string& language, std::string_view bytes, const std::string& type = "strings") const {
    directory_.write(language + ".lproj/Localizable." + type, bytes);
  }
  [[nodiscard]] bool hasEntry(const std::string& part) const {
    return readFile(root(), Catalogue::kFile).find(part) != std::string::npos;
  }
  [[nodiscard]] std::string textOf(const std::string& language, const std::string& key) const {
    const Table table = Table::read(root(), language);
    const TableEntry* const entry = table.find(key);
    return entry ? entry->text : "none";
  }

  zk::testing::TemporaryDirectory directory_;
};

TEST_F(AdoptionOf, KeysOfAllKindsStayAsTheyAre) {
  write("en",
        "/* the title */\n\"Settings.Title\" = \"Settings\";\n\"Delete it? It is gone then.\" = \"Delete "
        "it?\";\n"
        "About = \"About\";\n\"Tap it to use one\" = \"Tap it\";\n");
  write("de", "\"Settings.Title\" = \"Einstellungen\";\n");
  const Adoption done = adopt(root(), english());
  EXPECT_EQ(done.entries, 4U);
  EXPECT_TRUE(done.remarks.empty());
  EXPECT_TRUE(hasEntry("{\"key\": \"Settings.Title\", \"text\": \"Settings\", \"kept\": \"key\"}"));
  EXPECT_TRUE(hasEntry("{\"key\": \"About\", \"text\": \"About\"}"));
  EXPECT_TRUE(hasEntry("{\"key\": \"Tap it to use one\", \"text\": \"Tap it\", \"kept\": \"key\"}"));
  EXPECT_EQ(textOf("de", "Settings.Title"), "Einstellungen");
  EXPECT_NE(readFile(root(), tablePath("Base")).find("/* the title */\n\"Settings.Title\""),
            std::string::npos);
  const CheckResult checked = check(root(), {.languages = {"Base"}, .off = {}, .notes = false});
  EXPECT_TRUE(checked.faults.empty()) << formatted(checked.faults.front(), false);
}

TEST_F(AdoptionOf, PluralFormsBecomeTheFive) {
  write("en", "\"items_one\" = \"%d item\";\n\"items.other\" = \"x\";\n\"items_other\" = \"%d items\";\n");
  write("pl", "items_one = \"%d rzecz\"; items_few = \"%d rzeczy\"; items_many = \"%d rzeczy!\";");
  write("en", R"(<?xml version="1.0"?><!DOCTYPE plist PUBLIC "-//X//DTD" "http://example.org/x.dtd">
<plist><dict><key>photos</key><dict><key>NSStringLocalizedFormatKey</key><string>%2$@ has %1$#@n@</string>
<key>n</key><dict><key>one</key><string>%d photo</string><key>other</key><string>%d photos</string></dict></dict>
<key>both</key><dict><key>NSStringLocalizedFormatKey</key><string>%#@a@ %#@b@</string></dict></dict></plist>)",
        "stringsdict");
  const Adoption done = adopt(root(), english());
  EXPECT_TRUE(hasEntry("{\"key\": \"items\", \"text\": \"%{value} items\", \"plural\": true"));
  EXPECT_EQ(textOf("Base", "items_one"), "%{value} item");
  EXPECT_EQ(textOf("Base", "items_zero"), "%{value} items");
  EXPECT_EQ(textOf("pl", "items_two"), "%{value} rzeczy");
  EXPECT_EQ(textOf("pl", "items_zero"), "%{value} rzeczy!");
  EXPECT_EQ(textOf("Base", "photos_one"), "%{second} has %{first} photo");
  ASSERT_EQ(done.remarks.size(), 2U);  // the repeated form, and the entry with two variables
  EXPECT_NE(done.remarks.back().message.find("several variables"), std::string::npos);
}

TEST_F(AdoptionOf, CommentsAndTextsOfBothFilesComeAlong) {
  write(
      "en",
      "\"back\" = \"Back\";  // in the bar\n\"note\" = \"One\\rTwo\\r\\nThree\";\n/* the same */\n"
      "\"coins\" = \"Coins\";\n\"about\" = \"Old\"; /* Info */ // shown once\n/* \"gone\" = \"Gone\"; */\n");
  write("en", R"(<plist><dict><key>about</key><string>About &amp; more</string><key>coins</key><dict>
<key>NSStringLocalizedFormatKey</key><string>%#@n@</string><key>n</key><dict><key>other</key><string>%d coins</string>
</dict></dict><key>about</key><string>About</string></dict></plist>)",
        "stringsdict");
  const Adoption done = adopt(root(), english());
  const std::string table = readFile(root(), tablePath("Base"));
  for (const char* const part :
       {"/* in the bar */\n\"back\" = \"Back\";", "\"note\" = \"One\\nTwo\\nThree\";",
        "/* Info */\n/* shown once */\n\"about\" = \"About\";",
        "/* the same */\n\"coins_zero\" = \"%{value} coins\";"})
    EXPECT_NE(table.find(part), std::string::npos) << part << "\n" << table;
  ASSERT_EQ(done.remarks.size(), 4U);  // the comment at the end; three texts, of which later ones count
  EXPECT_EQ(formatted(done.remarks.front(), false).substr(directory_.path().size()),
            "/en.lproj/Localizable.strings:6:1: note: the comments from here on belong to no text; left out");
}

TEST_F(AdoptionOf, WhatCannotComeAlongIsListedWithItsLine) {
  write("en",
        "\"good\" = \"Good\";\n\"broken\" \"x\";\n\"again\" = \"%1$@ %1$@\";\n\"???\" = \"???\";\n\"empty\" "
        "= \"\";\n"
        "\"go.od\" = \"a\";\n\"go_od\" = \"b\";\n\"bell\" = \"\\a\";\n\"name\" = \"%{a b}\";\n\"Hello_name\" "
        "= \"Hi\";\n");
  write("de", "\"good\" = \"%@\";\n\"strange\" = \"x\";\n");
  write("fil", "\"good\" = \"x\";\n");
  write("pt", "\"good\" = \"Bom\";\n");
  write("pt-BR", "\"good\" = \"Legal\";\n");
  const Adoption done = adopt(root(), english());
  EXPECT_EQ(done.entries, 2U);  // "good" and the first of those whose functions have one name
  std::string places;
  for (const Fault& remark : done.remarks) {
    places += remark.file.substr(directory_.path().size() + 1) + ":" + std::to_string(remark.line) + " ";
  }
  const std::string en = "en.lproj/Localizable.strings:";
  EXPECT_EQ(places, en + "2 " + en + "3 " + en + "4 " + en + "5 " + en + "7 " + en + "8 " + en + "9 " + en +
                        "10 fil.lproj/Localizable.strings:1 pt-BR.lproj/Localizable.strings:1 "
                        "de.lproj/Localizable.strings:2 de.lproj/Localizable.strings:1 ");
  EXPECT_EQ(textOf("pt", "good"), "Bom");
  EXPECT_EQ(textOf("de", "good"), "none");
}

TEST_F(AdoptionOf, TakesTablesInUtf16) {
  constexpr std::string_view kText = "\"Good\" = \"Good\";";
  for (const bool isMarked : {true, false}) {
    std::string bytes = isMarked ? "\xFF\xFE" : "";
    for (const char character : kText) bytes += {character, '\0'};
    write("en", bytes);
    initCatalogue(root() + (isMarked ? "1" : "2"), {"Texts", ""});
    EXPECT_EQ(adopt(root() + (isMarked ? "1" : "2"), english()).entries, 1U) << isMarked;
  }
}

TEST_F(AdoptionOf, TakesTheLineEndsOfAllSystems) {
  int number = 0;
  for (const char* const end : {"\n", "\r\n", "\r"}) {
    const std::string folder = root() + std::to_string(++number);
    initCatalogue(folder, {"Texts", ""});
    write("en", std::string("\"one\" = \"One\"; // first") + end + "// second" + end + "\"two\" = \"a" + end +
                    "b\";");
    EXPECT_EQ(adopt(folder, english()).entries, 2U) << number;
    EXPECT_NE(readFile(folder, tablePath("Base")).find("/* second */\n\"two\" = \"a\\nb\";"),
              std::string::npos)
        << number;
  }
}

TEST_F(AdoptionOf, WhatIsNoTableChangesNothing) {
  const std::string before = readFile(root(), Catalogue::kFile);
  for (const std::string_view bytes :
       {std::string_view(""), std::string_view("bplist00"), std::string_view("\xFF\xFE\x00", 3),
        std::string_view("\"a\""), std::string_view("\"???\" = \"?\";")}) {
    write("en", bytes);
    EXPECT_THROW(static_cast<void>(adopt(root(), english())), CommandFailed) << bytes;
  }
  EXPECT_THROW(static_cast<void>(adopt(root(), directory_.path())), CommandFailed);
  write("en", "<plist><dict><key>", "stringsdict");
  EXPECT_THROW(static_cast<void>(adopt(root(), english())), CommandFailed);
  EXPECT_EQ(readFile(root(), Catalogue::kFile), before);
}

TEST_F(AdoptionOf, BringsTheSameTextsAlongOnce) {
  write("en", "\"good\" = \"Good\";\n");
  EXPECT_EQ(adopt(root(), english()).entries, 1U);
  const std::string before = readFile(root(), Catalogue::kFile);
  EXPECT_THROW(static_cast<void>(adopt(root(), english())), CommandFailed);
  EXPECT_EQ(readFile(root(), Catalogue::kFile), before);
}

}  // namespace
}  // namespace zk::tools
