#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace zk {
namespace {

using namespace std::literals;

/// The content of a value; of objects, only the member "n".
std::string shown(const Value* value) {
  if (!value) return "nothing";
  if (const auto* const number = value->as<std::int64_t>()) return std::to_string(*number);
  if (const auto* const number = value->as<double>()) return nlohmann::json(*number).dump();
  if (const auto* const text = value->as<std::string>()) return "'" + *text + "'";
  if (const auto* const isTrue = value->as<bool>()) return *isTrue ? "true" : "false";
  if (value->as<std::nullptr_t>()) return "null";
  if (const auto* const object = value->as<Dictionary>()) return "n=" + shown(object->find("n"));
  std::string elements;
  for (const Value& element : *value->as<Value::List>()) elements += shown(&element) + " ";
  return elements;
}

std::string parsed(const std::string& bytes) {
  const std::optional<Value> value = parseJson(bytes);
  return shown(value ? &*value : nullptr);
}

/// The bytes of UTF-16 or UTF-32.
template <class Character>
std::string wide(std::basic_string_view<Character> text, bool bigEndian) {
  std::string bytes;
  for (const Character unit : text)
    for (std::size_t i = 0; i < sizeof(unit); ++i)
      bytes += static_cast<char>(unit >> 8 * (bigEndian ? sizeof(unit) - 1 - i : i));
  return bytes;
}

TEST(Json, ReadsEveryEncodingWithAndWithoutMark) {
  const auto expectRead = [](const std::string& bytes) { EXPECT_EQ(parsed(bytes), "n=44 'ü 🎉' ") << bytes; };
  expectRead("[{\"n\": 44}, \"ü 🎉\"]");
  expectRead("\uFEFF[{\"n\": 44}, \"ü 🎉\"]");
  for (const bool bigEndian : {false, true}) {
    expectRead(wide(u"[{\"n\": 44}, \"ü 🎉\"]"sv, bigEndian));
    expectRead(wide(u"\uFEFF[{\"n\": 44}, \"ü 🎉\"]"sv, bigEndian));
    expectRead(wide(U"[{\"n\": 44}, \"ü 🎉\"]"sv, bigEndian));
    expectRead(wide(U"\uFEFF[{\"n\": 44}, \"ü 🎉\"]"sv, bigEndian));
  }
}

TEST(Json, ReadsValuesAndRefusesWhatIsNotJson) {
  auto rows = testing::rowsOf<std::string, std::string>("platform/JsonTest.json");
  // A table of cases can contain neither long texts nor bytes that are not UTF-8.
  const std::string deep(100000, '['), digits(400, '9');
  for (const std::string& refused :
       {deep, deep + "]", digits, digits + ".5", "\"\xFF\""s, "[\"\xC3\"]"s, "\xFF\xFE["s, "\0[\0"s,
        "[\0]\0 \0\0\0"s, "\xFF\xFE\xFF\xFE[\0]\0"s, "\xFF\xFE\"\0\0\xD8\"\0"s, "\xFF\xFE\"\0\0\xDC\"\0"s,
        "\xFF\xFE\"\0\0\xD8x\0\"\0"s, "\xFF\xFE[\0]\0x"s})
    rows.emplace_back(refused, "nothing");
  for (const auto& [text, value] : rows) EXPECT_EQ(parsed(text), value) << text.substr(0, 40);
}

// This would take minutes if the cost were quadratic.
TEST(Json, LongNumbersAreReadOnce) {
  const std::string digits(1000000, '9');
  EXPECT_TRUE(parseJson("[0." + digits + ", 1e-" + digits + "]"));
  EXPECT_FALSE(parseJson("[" + digits + "]"));
  EXPECT_FALSE(parseJson("[" + std::string(1000000, '0') + "]"));
}

/// Sets a locale with a decimal comma, which it creates, because the machine may not have one.
TEST(Json, NumbersHaveAPointInEveryLocale) {
  const testing::TemporaryDirectory directory;
  directory.write("source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\nEND LC_NUMERIC\n");
  setenv("LOCPATH", directory.path().c_str(), 1);
  // localedef fails because categories are missing, but writes the locale.
  const int ignored = std::system("cd \"$LOCPATH\" && localedef --no-archive -ci source ./comma >log 2>&1");
  static_cast<void>(ignored);
  // Some C libraries accept any name and still use a point.
  const bool isMade = std::setlocale(LC_NUMERIC, "comma") && std::localeconv()->decimal_point == ","s;
  const std::string numbers = parsed("[1.25, 7]");
  const std::string pointAfterwards = std::localeconv()->decimal_point;
  std::setlocale(LC_NUMERIC, "C");
  unsetenv("LOCPATH");
  if (!isMade) GTEST_SKIP() << "this machine cannot make a locale";
  EXPECT_EQ(numbers, "1.25 7 ");
  EXPECT_EQ(pointAfterwards, ",");
}

TEST(Json, DeepNestingIsCheckedButNotKept) {
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  const std::optional<Value> value = parseJson("{\"deep\": " + deep + ", \"o\": {\"a\": {}}, \"n\": 1}");
  ASSERT_TRUE(value);
  EXPECT_EQ(shown(&*value), "n=1");
  int levels = 1;  // the object
  const auto* list = value->as<Dictionary>()->find<Value::List>("deep");
  for (; list; list = list->empty() ? nullptr : list->front().as<Value::List>()) ++levels;
  EXPECT_EQ(levels, 100);
}

}  // namespace
}  // namespace zk
