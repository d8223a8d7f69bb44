#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

using namespace std::string_literals;
using testing::TemporaryDirectory;

std::optional<std::string> textIn(const std::string& path, std::string_view key = "a") {
  std::error_code unused;
  const StringTable table = StringTable::inFile(path, unused);
  const std::optional<std::string_view> text = table.find(key);
  return text ? std::optional<std::string>(*text) : std::nullopt;
}

TEST(StringTable, FindsTheTextsOfTheFile) {
  const TemporaryDirectory directory;
  using Json = nlohmann::json;
  for (const auto& [file, key, expected] :
       testing::rowsOf<std::string, std::string, Json>("platform/StringTableTest.json")) {
    const std::optional<std::string> text = textIn(directory.write("t.strings", file), key);
    EXPECT_EQ(text ? Json(*text) : Json(), expected) << file;
  }
  EXPECT_EQ(textIn(directory.write("utf16", "\xFF\xFE\"\0a\0\"\0=\0\"\0\x16\x30\"\0;\0"s)), "〖");
  EXPECT_EQ(textIn(directory.write("unmarked", "\"\0a\0\"\0=\0\"\0b\0\"\0;\0"s)), "b");
  EXPECT_EQ(textIn(directory.write("bytes", "\"a\" = \"b\"; \"c\" = \"\xFF\";")), std::nullopt);
}

TEST(StringTable, FindsEveryKeyOfALargeTable) {
  std::string file;
  for (int i = 0; i < 20000; ++i)
    file += "\"key_" + std::to_string(i) + "\" = \"" + std::to_string(i * 7) + "\";\n";
  const TemporaryDirectory directory;
  std::error_code unused;
  const StringTable table = StringTable::inFile(directory.write("t.strings", file), unused);
  for (int i = 0; i < 20000; ++i) ASSERT_EQ(table.find("key_" + std::to_string(i)), std::to_string(i * 7));
  for (int i = 20000; i < 40000; ++i) ASSERT_EQ(table.find("key_" + std::to_string(i)), std::nullopt);
}

TEST(StringTable, TellsKeysWithTheSameHashApart) {
  const std::string key = "about_me", longer = "about_memV3HH2yy";
  if constexpr (std::endian::native == std::endian::little) {
    ASSERT_EQ(hashOf(key) >> 32, hashOf(longer) >> 32);
  }
  const TemporaryDirectory directory;
  EXPECT_EQ(textIn(directory.write("t.strings", longer + " = a;"), key), std::nullopt);
}

TEST(StringTable, AHashDependsOnEveryByte) {
  std::set<std::uint64_t> all, upperHalves;
  for (std::size_t size = 0; size < 40; ++size) {
    for (std::size_t place = 0; place <= size; ++place) {
      std::string text(size, 'a');
      if (place < size) text[place] = 'b';
      all.insert(hashOf(text));
      upperHalves.insert(hashOf(text) >> 32);
    }
  }
  EXPECT_EQ(all.size(), 820u);
  EXPECT_EQ(upperHalves.size(), 820u);
}

TEST(StringTable, IsEmptyIfTheFileCannotBeRead) {
  const TemporaryDirectory directory;
  const std::string table = directory.write("table", "\"a\" = \"b\";");
  for (const std::string& path :
       {directory.path(), directory.path() + "/missing", table + "\0.strings"s, ""s})
    EXPECT_EQ(textIn(path), std::nullopt) << path;
}

TEST(StringTableReader, ReportsErrorsAndRecovers) {
  using Keys = std::vector<std::string>;  // of all entries that can be read
  for (const auto& [text, beginOfRest, expected, allKeys] :
       testing::rowsOf<std::string, std::string, std::string, Keys>("platform/StringTableReaderTest.json")) {
    StringTableReader reader(text);
    Keys keys;
    const auto readAll = [&, &table = text] {
      while (reader.next())
        keys.push_back(table.substr(reader.key().begin, reader.key().end - reader.key().begin));
    };
    readAll();
    ASSERT_TRUE(reader.error()) << text;
    EXPECT_TRUE(text.substr(reader.error()->offset).starts_with(beginOfRest)) << text;
    EXPECT_NE(reader.error()->expected.find(expected), std::string::npos) << reader.error()->expected;
    while (reader.error()) {
      reader.recover();
      readAll();
    }
    EXPECT_EQ(keys, allKeys) << text;
  }
}

}  // namespace
}  // namespace zk
