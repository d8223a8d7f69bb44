#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/system/ProcessSeed.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zk {
namespace {

using namespace std::string_literals;
using testing::TemporaryDirectory;

std::string utf16(const std::u16string& text, bool bigEndian) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char high = static_cast<char>(unit >> 8);
    const char low = static_cast<char>(unit & 0xFF);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

StringTable tableIn(const std::string& path) {
  std::error_code unused;
  return StringTable::inFile(path, unused);
}

struct Case {
  std::string file;
  std::string key;
  std::optional<std::string> text;
};

TEST(StringTable, FindsTheTextThatTheFileSpells) {
  const std::u16string marked = u"\uFEFF\"a\" = \"ü 🎉\";";
  const std::vector<Case> cases = {
      {"\"a\" = \"b\";", "a", "b"},
      {"\xEF\xBB\xBF\"a\" = \"ü\";", "a", "ü"},
      {utf16(marked, false), "a", "ü 🎉"},
      {utf16(marked, true), "a", "ü 🎉"},
      {"\"a\"=\"1\";\r\n\"b\"=\"2\";\r\n", "b", "2"},
      {"/* x */ \"a\" /* = */ = // ;\n \"b\" /**/ ; // end", "a", "b"},
      {"key/* c */=v;", "key", "v"},
      {"a_$/:.-9 = http://x.y;", "a_$/:.-9", "http://x.y"},
      {"\"a\" = \"line\nbreak\";", "a", "line\nbreak"},
      {"\"a\" = \"1\"; \"b\" = \"2\"; \"a\" = \"3\";", "a", "3"},
      {R"("a\"b" = "\"\\\n\t\r\a\b\f\v";)", "a\"b", "\"\\\n\t\r\a\b\f\v"},
      {R"("a" = "\101\7x\0";)", "a", "A\ax\0"s},
      {R"("a" = "\U00e9\Ud83c\Udf89\Ud83c!";)", "a", "é🎉\uFFFD!"},
      {R"("a" = "\U00e9a";)", "a", "éa"},
      {R"("a" = "\U41,\U41g\Ue9\U7ff\U1234";)", "a", "A,Agé\u07FF\u1234"},
      {R"("a" = "\Ud83c\Udf8 \Ud83c\U9";)", "a", "\uFFFD\u0DF8 \uFFFD\t"},
      {R"("a" = "\q\Ug\é\U";)", "a", "qUgéU"},
      {"\"\" = \"\";", "", ""},
      {"\"a_one\" = \"1\";", "a", std::nullopt},
      {"", "a", std::nullopt},
      // Not well-formed as a whole, and so without any text.
      {"\"a\" = \"b\";\n\"c\" = \"d\"", "a", std::nullopt},
      {"\"a\" = \"b\"; \"c\" \"d\";", "a", std::nullopt},
      {"\"a\" = \"b\"; /* open", "a", std::nullopt},
      {"\"a\" = \"b\"; \"open", "a", std::nullopt},
      {"\"a\" = \"b\"; ü = x;", "a", std::nullopt},
      {"\"a\" = \"b\"; \"c\" = \"\xFF\";", "a", std::nullopt},
      {utf16(u"\uFEFF\"a\" = \"b\";", false) + "x", "a", std::nullopt},
      {utf16(u"\uFEFF\"a\" = \"\xD800\";", true), "a", std::nullopt},
      {"\"a\" = \"b\\", "a", std::nullopt},
  };
  const TemporaryDirectory directory;
  for (const Case& item : cases) {
    const StringTable table = tableIn(directory.write("t.strings", item.file));
    EXPECT_EQ(table.find(item.key), item.text) << item.file;
  }
}

TEST(StringTable, FindsEveryKeyOfALargeTable) {
  std::string file;
  for (int i = 0; i < 20000; ++i)
    file += "\"key_" + std::to_string(i) + "\" = \"" + std::to_string(i * 7) + "\";\n";
  const TemporaryDirectory directory;
  const StringTable table = tableIn(directory.write("t.strings", file));
  for (int i = 0; i < 20000; ++i) ASSERT_EQ(table.find("key_" + std::to_string(i)), std::to_string(i * 7));
  for (int i = 20000; i < 40000; ++i) ASSERT_EQ(table.find("key_" + std::to_string(i)), std::nullopt);
}

/// How many different numbers `hash` gives for 0, 1, 2, ... 9,999.
template <class Hash>
std::size_t differentHashes(Hash hash) {
  std::set<std::uint64_t> different;
  for (std::uint64_t number = 0; number < 10000; ++number) different.insert(hash(number));
  return different.size();
}

TEST(StringTable, TextsThatCollideUnderOneSeedDoNotUnderThatOfTheProcess) {
  const std::uint64_t known = 0x0123456789ABCDEF;
  ASSERT_NE(processSeed(), 0u);
  EXPECT_EQ(processSeed(), processSeed());
  for (const auto& [seed, expected] : {std::pair{known, 1}, std::pair{processSeed(), 10000}}) {
    const auto collidingKey = [&, chosen = seed](std::uint64_t number) {
      char key[16];
      std::memcpy(key, &known, 8);
      std::memcpy(key + 8, &number, 8);
      return hashOf({key, 16}, chosen);
    };
    EXPECT_EQ(differentHashes(collidingKey), expected) << seed;
  }
  // A resource whose name and type are the same, such as "X.X".
  const auto sameTwice = [](std::uint64_t number) { return hashOfWords(number, number, processSeed()); };
  EXPECT_EQ(differentHashes(sameTwice), 10000u);
}

TEST(StringTable, WhatIsNoReadableFileHoldsNothing) {
  const TemporaryDirectory directory;
  const std::string fifo = directory.path() + "/fifo";
  const std::string huge = directory.write("huge", "\"a\" = \"b\";");
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  std::filesystem::resize_file(huge, std::uintmax_t{1} << 40);
  for (const std::string& path :
       {directory.path(), fifo, huge, directory.path() + "/missing", "/dev/zero"s, ""s}) {
    EXPECT_EQ(tableIn(path).find("a"), std::nullopt) << path;
  }
}

TEST(StringTableReader, SaysWhatWasExpectedWhereAndGoesOn) {
  struct Faulty {
    std::string text;
    std::string at;  // the text from the fault's offset on begins with this
    std::string expected;
    std::vector<std::string> keys;  // of all entries that can be read
  };
  const std::vector<Faulty> cases = {
      {"\"a\" = \"1\"\n\"b\" = \"2\";\n", "\n\"b\"", "\";\"", {"b"}},
      {"\"a\" =\n\"1\" /* x */\n\"b\" = \"2\";\n", " /* x */", "\";\"", {"b"}},
      {"\"a\" \"1\";\n\"b\" = \"2\";\n", "\"1\"", "\"=\"", {"b"}},
      {"\"a\" = \"1\";\n\"b\" \"2\";\n\"c\" = \"3\";\n", "\"2\"", "\"=\"", {"a", "c"}},
      {"\"a\" \"1\";\n/* old:\n\"b\" = \"2\";\n*/\n\"c\" = \"3\";\n", "\"1\"", "\"=\"", {"c"}},
      {"\"a\" = ;\n\"b\" = \"2\";\n", ";\n", "the text of the key", {"b"}},
      {"\"a\" = \"1;\n\"b\" = \"2\";\n\"c\" = \"3\";\n", "\"1;", "closing quote", {"b", "c"}},
      {"\"a\" = \"1\";\nö = 2;\n\"c\" = \"3\";\n", "ö", "a key", {"a", "c"}},
      {"\"a\" = \"1\"; /* x\n", "/* x", "\"*/\"", {"a"}},
      {"\n/*", "/*", "\"*/\"", {}},
      {"\"a\" = \"1\";\n\"b\" /*\n/*\n\"c\" = \"3\";\n/*", "/*\n/*\n", "\"*/\"", {"a"}},
  };
  for (const Faulty& item : cases) {
    StringTableReader reader(item.text);
    std::vector<std::string> keys;
    const auto readAll = [&] {
      while (reader.next())
        keys.push_back(item.text.substr(reader.key().begin, reader.key().end - reader.key().begin));
    };
    readAll();
    ASSERT_TRUE(reader.fault()) << item.text;
    EXPECT_TRUE(item.text.substr(reader.fault()->offset).starts_with(item.at)) << item.text;
    EXPECT_NE(reader.fault()->expected.find(item.expected), std::string::npos) << reader.fault()->expected;
    while (reader.fault()) {
      reader.recover();
      readAll();
    }
    EXPECT_EQ(keys, item.keys) << item.text;
  }
}

}  // namespace
}  // namespace zk
