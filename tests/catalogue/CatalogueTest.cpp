#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

constexpr const char* kRoot = ZK_PROJECT_ROOT;

/// The texts that apps were built with, as they were released.
Catalogue releasedCatalogue() {
  constexpr const char* kFile = "tests/catalogue/released.json";
  return Catalogue::parse(readFile(kRoot, kFile), kFile);
}

TEST(Catalogue, NeitherLosesNorChangesWhatWasReleased) {
  const Catalogue released = releasedCatalogue();
  std::map<std::pair<std::string_view, bool>, const Entry*> present;
  const Catalogue catalogue = Catalogue::read(kRoot);
  for (const Entry& entry : catalogue.entries()) present[{entry.key, entry.plural}] = &entry;
  for (const Entry& entry : released.entries()) {
    const Entry* const now = present[{entry.key, entry.plural}];
    ASSERT_TRUE(now) << entry.key << " was released and is gone";
    EXPECT_EQ(now->text, entry.text) << entry.key << " was released with another text";
    EXPECT_EQ(now->kept, entry.kept) << entry.key;
  }
}

TEST(Catalogue, WasReleasedWithTheFiguresThatTheAppWasBuiltFor) {
  const Catalogue catalogue = releasedCatalogue();
  std::set<std::string_view> keys;
  std::map<std::pair<bool, std::size_t>, int> families;  // by count and number of text arguments
  std::map<Entry::Kept, int> kept;
  int longest = 0;
  int byTheRule = 0;
  for (const Entry& entry : catalogue.entries()) {
    keys.insert(entry.key);
    ++families[{entry.plural, placeholderNames(entry.text).size()}];
    ++kept[entry.kept];
    longest += entry.key.size() == kLongestKey;
    byTheRule += entry.key == keyForText(entry.text);
  }
  EXPECT_EQ(keys.size(), 856u);
  const std::map<std::pair<bool, std::size_t>, int> expectedFamilies = {
      {{false, 0}, 685}, {{true, 0}, 10}, {{false, 1}, 85}, {{false, 2}, 26}, {{false, 3}, 10},
      {{false, 4}, 1},   {{false, 5}, 1}, {{true, 1}, 37},  {{true, 2}, 4},   {{true, 3}, 1}};
  EXPECT_EQ(families, expectedFamilies);
  EXPECT_EQ(longest, 27);
  EXPECT_EQ(byTheRule, 852);
  EXPECT_EQ(kept[Entry::Kept::key], 8);
  EXPECT_EQ(kept[Entry::Kept::place], 8);
}

TEST(Catalogue, AccessorsAreUpToDate) {
  const Catalogue catalogue = Catalogue::read(kRoot);
  const Accessors fresh = generateAccessors(catalogue, Table::read(kRoot, "Base"), CatalogueName());
  EXPECT_TRUE(readFile(kRoot, CatalogueName().headerFile()) == fresh.header) << "run zkstrings generate";
  EXPECT_TRUE(readFile(kRoot, CatalogueName().sourceFile()) == fresh.source) << "run zkstrings generate";
  EXPECT_EQ(readFile(kRoot, Catalogue::kFile), catalogue.toJson());
}

TEST(Catalogue, TheEnglishTableHoldsExactlyWhatIsLookedUp) {
  const Catalogue catalogue = Catalogue::read(kRoot);
  const Table base = Table::read(kRoot, "Base");
  ASSERT_TRUE(base.faults.empty());
  const std::vector<Catalogue::LookedUpKey> expected = catalogue.lookedUpKeys();
  for (std::size_t i = 0; i < std::min(base.entries.size(), expected.size()); ++i) {
    ASSERT_EQ(base.entries[i].key, expected[i].key);
    if (expected[i].suffix.empty()) {
      EXPECT_EQ(base.entries[i].text, expected[i].entry->text) << expected[i].key;
    }
  }
  EXPECT_EQ(base.entries.size(), expected.size());
}

TEST(Catalogue, RefusesAWrongEntryNamingItsLine) {
  struct Case {
    std::string lines;  // between the brackets
    std::size_t line;
    std::string message;
  };
  const std::string a = R"({"key": "A", "text": "A"})";
  const std::string b = R"({"key": "B", "text": "B"})";
  const Case cases[] = {
      {b + ",\n" + a, 3, "out of place"},
      {a + ",\n" + a, 3, "stands already in line 2"},
      {a + ",\n" + R"({"key": "A", "text": "A!", "plural": true})", 3, "another text in line 2"},
      {R"({"key": "A", "text": "B"})", 2, "use \"B\""},
      {R"({"key": "A", "text": "A", "kept": "key"})", 2, "follows the rule"},
      {R"({"key": "???", "text": "x", "kept": "key"})", 2, "cannot name a function"},
      {R"({"key": "a_a", "text": "%{a} %{a}"})", 2, "stands twice"},
      {R"({"key": "a_b", "text": "%{a b}"})", 2, "cannot name an argument"},
      {R"({"key": "count", "text": "%{count}", "plural": true})", 2, "has the argument count already"},
      {R"({"key": "A"})", 2, "no key or no text"},
      {R"({"key": "A", "text": "A", "more": 1})", 2, "\"more\" is unknown"},
      {R"({"key": "A", "text": 5})", 2, "\"text\" is unknown or of the wrong type"},
      {R"({"key": "A", text: "A"})", 2, "no JSON object"},
      {a + ",", 2, "comma behind the last"},
      {a + "\n" + b, 2, "no comma"},
      {"5", 2, "no JSON object"},
  };
  for (const Case& item : cases) {
    try {
      static_cast<void>(Catalogue::parse("[\n" + item.lines + "\n]\n", "entries.json"));
      ADD_FAILURE() << "accepted: " << item.lines;
    } catch (const CommandFailed& failed) {
      EXPECT_EQ(failed.faults.front().line, item.line) << item.lines;
      EXPECT_NE(failed.faults.front().message.find(item.message), std::string::npos)
          << failed.faults.front().message;
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
