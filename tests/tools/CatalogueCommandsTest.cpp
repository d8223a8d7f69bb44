#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/AccessorGenerator.h>
#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/CatalogueCommands.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/Table.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

/// A project with the entries B, "ZZ" kept in its place, and D.
class CatalogueCommands : public ::testing::Test {
 protected:
  CatalogueCommands() {
    project_.write(Catalogue::kFile,
                   "[\n  {\"key\": \"B\", \"text\": \"B\"},\n  {\"key\": \"ZZ\", \"text\": \"ZZ\", \"kept\": "
                   "\"place\"},\n"
                   "  {\"key\": \"D\", \"text\": \"D\"}\n]\n");
    project_.write(tablePath("Base"), "/* English */\n\n\"B\" = \"B\";\n\"ZZ\" = \"ZZ\";\n\"D\" = \"D\";\n");
  }
  [[nodiscard]] std::string read(const std::string& path) const { return readFile(root(), path); }
  [[nodiscard]] const std::string& root() const { return project_.path(); }

  zk::testing::TemporaryDirectory project_;
};

TEST_F(CatalogueCommands, AddPutsTheEntryInItsPlaceEverywhere) {
  EXPECT_EQ(addEntry(root(), "C \"%{name}\"\n", false), "C_name_n");
  EXPECT_EQ(addEntry(root(), "a", false), "a");
  EXPECT_EQ(addEntry(root(), "D", true), "D");
  EXPECT_EQ(read(tablePath("Base")),
            "/* English */\n\n\"a\" = \"a\";\n\"B\" = \"B\";\n\"C_name_n\" = \"C "
            "\\\"%{name}\\\"\\n\";\n\"ZZ\" = \"ZZ\";\n\"D\" = \"D\";\n"
            "\"D_zero\" = \"D\";\n\"D_one\" = \"D\";\n\"D_two\" = \"D\";\n\"D_few\" = \"D\";\n\"D_many\" = "
            "\"D\";\n");
  std::string keys;
  const Catalogue catalogue = Catalogue::read(root());
  for (const Entry& entry : catalogue.entries()) keys += entry.key + (entry.plural ? "(count) " : " ");
  EXPECT_EQ(keys, "a B C_name_n ZZ D D(count) ");
  EXPECT_NE(read(Accessors::kHeaderFile).find("static std::string C_name_n(Text name);"),
            std::string::npos);
  EXPECT_NE(read(Accessors::kSourceFile).find("localizedString(\"D\", \"D\", count, {})"), std::string::npos);
}

TEST_F(CatalogueCommands, AddRefusesWithoutChangingAnything) {
  const std::string before = read(Catalogue::kFile);
  for (const char* text : {"B", "!", "", "%{a}%{a}", "%{a b}"}) {
    EXPECT_THROW(addEntry(root(), text, false), CommandFailed) << text;
    EXPECT_EQ(read(Catalogue::kFile), before) << text;
  }
  project_.write(tablePath("Base"), "\"B\" = \"B\"\n");
  EXPECT_THROW(addEntry(root(), "New", false), CommandFailed);
  EXPECT_EQ(read(Catalogue::kFile), before);
}

TEST_F(CatalogueCommands, GenerateKeepsReservedWordsOutOfTheCode) {
  project_.write(Catalogue::kFile, "[\n  {\"key\": \"or_class\", \"text\": \"or %{class}\"}\n]\n");
  generate(root());
  EXPECT_NE(read(Accessors::kSourceFile).find("or_class(Text class_)"), std::string::npos);
  EXPECT_NE(read(Accessors::kSourceFile).find("{{\"class\", class_}}"), std::string::npos);
}

TEST(Table, FaultsNameLineAndColumn) {
  const std::pair<std::string, Position> cases[] = {
      {"\"a\" = \"1\"\n\"b\" = \"2\";\n", {1, 10}},
      {"\n\"ä\" \"1\";\n", {2, 5}},
      {"\"a\" = \"ä\xFF\";", {1, 9}},
  };
  for (const auto& [text, position] : cases) {
    const Table table = Table::parse(text, "t");
    ASSERT_EQ(table.faults.size(), 1u) << text;
    EXPECT_EQ(table.faults[0].line, position.line) << text;
    EXPECT_EQ(table.faults[0].column, position.column) << text;
  }
}

TEST(Catalogue, FaultsNameLineAndColumn) {
  struct Case {
    std::string line;  ///< the second of entries.json, the only entry's
    std::size_t column;
  };
  const Case cases[] = {
      {R"({"key": "a", "text": 1e999})", 1},
      {R"({"key": "a", "text": -1e999})", 1},
      {R"(1e999)", 1},
      {R"({"key": "ä" "text": "ä"})", 18},
      {R"({"key": "ä", "text": "ä"},)", 26},
      {"", 1},
      {",", 1},
      {"[", 2},
      {"{\"key\": \"\xFF\"}", 10},
  };
  for (const auto& [line, column] : cases) {
    try {
      static_cast<void>(Catalogue::parse("[\n" + line + "\n]\n", "entries.json"));
      ADD_FAILURE() << "no fault: " << line;
    } catch (const CommandFailed& failed) {
      EXPECT_EQ(failed.faults[0].line, 2u) << line;
      EXPECT_EQ(failed.faults[0].column, column) << line << ": " << failed.faults[0].message;
    }
  }
}

}  // namespace
}  // namespace zk::tools
