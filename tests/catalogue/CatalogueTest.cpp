#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

constexpr const char* kRoot = ZK_PROJECT_ROOT;

TEST(Catalogue, ItsFilesAreUpToDate) {
  const Catalogue catalogue = Catalogue::read(kRoot);
  for (const auto& [path, bytes] : generateAccessors(catalogue))
    EXPECT_TRUE(readFile(kRoot, path) == bytes) << path << ": run zkstrings generate";
  EXPECT_EQ(readFile(kRoot, Catalogue::kFile), catalogue.toJson());
}

TEST(Catalogue, RefusesAWrongEntryNamingItsLine) {
  using Json = nlohmann::json;
  for (const auto& [entries, line, message] :
       testing::rowsOf<std::vector<Json>, std::size_t, std::string>("catalogue/CatalogueTest.json")) {
    std::string lines;
    for (const Json& entry : entries)
      lines += (lines.empty() ? "" : ",\n") + (entry.is_string() ? entry.get<std::string>() : entry.dump());
    try {
      static_cast<void>(Catalogue::parse("[\n" + lines + "\n]\n"));
      ADD_FAILURE() << "accepted: " << lines;
    } catch (const CommandFailed& failed) {
      EXPECT_EQ(failed.diagnostics.front().line, line) << lines;
      EXPECT_NE(failed.diagnostics.front().message.find(message), std::string::npos)
          << failed.diagnostics.front().message;
    }
  }
}

TEST(KeyRule, DerivesTheKeyFromTheText) {
  auto rows = testing::rowsOf<std::string, std::string>("catalogue/KeyRuleTest.json");
  rows.emplace_back(std::string(99, 'a') + " b", std::string(99, 'a') + "_");
  rows.emplace_back(std::string(100, 'a') + "!", std::string(100, 'a'));
  rows.emplace_back("1" + std::string(120, 'a'), "_1" + std::string(98, 'a'));
  for (const auto& [text, key] : rows) EXPECT_EQ(keyForText(text), key) << text;
}

}  // namespace
}  // namespace zk::tools
