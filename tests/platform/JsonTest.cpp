#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace zk {
namespace {

using namespace std::string_literals;

std::string wide(const std::string& ascii, std::size_t unit, bool bigEndian) {
  std::string bytes;
  for (const char letter : ascii) {
    const std::string zeros(unit - 1, '\0');
    bytes += bigEndian ? zeros + letter : letter + zeros;
  }
  return bytes;
}

TEST(Json, ReadsEveryEncodingWithAndWithoutMark) {
  const std::string text = R"([{"n": 44}])";
  const std::string encoded[] = {text,
                                 "\xEF\xBB\xBF" + text,
                                 wide(text, 2, false),
                                 wide(text, 2, true),
                                 "\xFF\xFE" + wide(text, 2, false),
                                 "\xFE\xFF" + wide(text, 2, true),
                                 wide(text, 4, false),
                                 wide(text, 4, true),
                                 "\xFF\xFE\0\0"s + wide(text, 4, false),
                                 "\0\0\xFE\xFF"s + wide(text, 4, true)};
  for (std::size_t i = 0; i < std::size(encoded); ++i) {
    const std::optional<Value> value = parseJson(encoded[i]);
    ASSERT_TRUE(value && value->as<Value::List>()) << i;
    EXPECT_EQ(*value->as<Value::List>()->at(0).as<Dictionary>()->find<std::int64_t>("n"), 44) << i;
  }
}

TEST(Json, RefusesWhatIsNotJson) {
  const std::string deep(100000, '[');
  for (const std::string& text : {""s,
                                  " "s,
                                  "[1,]"s,
                                  "[1"s,
                                  "[1] 2"s,
                                  "{\"a\" 1}"s,
                                  "[01]"s,
                                  "\"\xFF\""s,
                                  "[\"\xC3\"]"s,
                                  "nul"s,
                                  deep,
                                  deep + "]",
                                  "[1e999, 1e]"s,
                                  "[1e999 1]"s,
                                  "[1e999, 1e999.5]"s,
                                  "[1e999, -]"s,
                                  "\xFF\xFE["s,
                                  "\0[\0]"s.substr(0, 3),
                                  "[1]\0"s,
                                  "[1] \0[2]"s,
                                  "[\0]\0 \0\0\0"s,
                                  "[\"\0\"]"s,
                                  "\xEF\xBB\xBF\xEF\xBB\xBF[1]"s,
                                  "\xFF\xFE\xFF\xFE[\0]\0"s,
                                  "[1]\xEF\xBB\xBF"s}) {
    EXPECT_FALSE(parseJson(text)) << text.substr(0, 40);
  }
}

TEST(Json, FragmentsParse) {
  EXPECT_EQ(*parseJson("\"text\"")->as<std::string>(), "text");
  EXPECT_EQ(*parseJson(" 5 ")->as<std::int64_t>(), 5);
  EXPECT_EQ(*parseJson("5"s + "\0"s)->as<std::int64_t>(), 5);  // UTF-16
  EXPECT_TRUE(*parseJson("true")->as<bool>());
  EXPECT_TRUE(parseJson("null")->as<std::nullptr_t>());
}

TEST(Json, ANumberTooLargeIsNoInteger) {
  const std::string digits(400, '9');
  for (const std::string& number : {"9223372036854775808"s, "18446744073709551616"s, "-9223372036854775809"s,
                                    "44.0"s, "1e2"s, "1e999"s, "-1E+999"s, digits, digits + ".5"}) {
    const std::optional<Value> value = parseJson("[" + number + ", \"a\\\"1e999\", 7]");
    ASSERT_TRUE(value) << number;
    const Value::List& list = *value->as<Value::List>();
    EXPECT_EQ(list[0].as<std::int64_t>(), nullptr) << number;
    EXPECT_EQ(*list[1].as<std::string>(), "a\"1e999") << number;
    EXPECT_EQ(*list[2].as<std::int64_t>(), 7) << number;
  }
  EXPECT_EQ(*parseJson("-9223372036854775808")->as<std::int64_t>(), INT64_MIN);
  EXPECT_EQ(*parseJson("9223372036854775807")->as<std::int64_t>(), INT64_MAX);
}

// It would take minutes if the work grew by the square.
TEST(Json, LongNumbersAreReadOnce) {
  const std::string digits(1000000, '9');
  EXPECT_TRUE(parseJson("[" + digits + ", 0." + digits + ", 1e" + digits + "]"));
  EXPECT_FALSE(parseJson("[1e999, " + digits + ".]"));
  EXPECT_FALSE(parseJson("[1e999, " + std::string(1000000, '0') + "]"));
}

/// The process's locale has a decimal comma, as most have; made here, since machines need not have one.
class DecimalComma : public ::testing::Test {
 protected:
  void SetUp() override {
    directory_.write("source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\nEND LC_NUMERIC\n");
    setenv("LOCPATH", directory_.path().c_str(), 1);
    // It warns of the categories that are missing, and tells so by its status too.
    static_cast<void>(std::system("cd \"$LOCPATH\" && localedef --no-archive -ci source ./comma >log 2>&1"));
    // Some C libraries take any name and have a point all the same.
    if (!std::setlocale(LC_NUMERIC, "comma") || std::localeconv()->decimal_point != ","s)
      GTEST_SKIP() << "this machine cannot make a locale";
  }
  void TearDown() override {
    std::setlocale(LC_NUMERIC, "C");
    unsetenv("LOCPATH");
  }

 private:
  const testing::TemporaryDirectory directory_;
};

TEST_F(DecimalComma, JsonNumbersHaveAPointAllTheSame) {
  const std::optional<Value> value = parseJson("[1.5e999, 1.25, 7]");
  ASSERT_TRUE(value);
  const Value::List& list = *value->as<Value::List>();
  EXPECT_TRUE(list[0].as<std::nullptr_t>());
  EXPECT_EQ(*list[1].as<double>(), 1.25);
  EXPECT_EQ(*list[2].as<std::int64_t>(), 7);
  EXPECT_EQ(std::localeconv()->decimal_point, ","s);
}

TEST(Json, DeepNestingIsCheckedAndWhatFollowsItRead) {
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  const std::optional<Value> value = parseJson("{\"deep\": " + deep + ", \"o\": {\"a\": {}}, \"n\": 1}");
  ASSERT_TRUE(value);
  EXPECT_EQ(*value->as<Dictionary>()->find<std::int64_t>("n"), 1);
  EXPECT_NE(value->as<Dictionary>()->find<Value::List>("deep"), nullptr);
}

TEST(Dictionary, TheLastOfSeveralMembersCounts) {
  const std::optional<Value> value = parseJson(R"({"a": 1, "A": 2, "a": 3})");
  EXPECT_EQ(*value->as<Dictionary>()->find<std::int64_t>("a"), 3);
  EXPECT_EQ(value->as<Dictionary>()->find<std::string>("a"), nullptr);
  EXPECT_EQ(value->as<Dictionary>()->find("b"), nullptr);
}

}  // namespace
}  // namespace zk
