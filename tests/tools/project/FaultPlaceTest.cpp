#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Fault.h>
#include <ZKStrings/tools/support/Position.h>

#include <cstddef>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

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
