#include <ZKStrings/platform/Dictionary.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

namespace zk {
namespace {

static_assert(!std::is_constructible_v<Value, void*>);
static_assert(!std::is_constructible_v<Value, const int*>);
static_assert(!std::is_constructible_v<Value, char>);
static_assert(!std::is_constructible_v<Value, char32_t>);

TEST(Value, TakesEveryKindOfNumberAndText) {
  const std::int64_t seven = 7;
  const Value integers[] = {
      static_cast<signed char>(7), static_cast<unsigned short>(7), 7, 7U, 7L, 7UL, 7LL, 7ULL, seven};
  for (const Value& value : integers) {
    ASSERT_TRUE(value.as<std::int64_t>());
    EXPECT_EQ(*value.as<std::int64_t>(), 7);
  }
  const Value texts[] = {"seven", std::string("seven"), std::string_view("seven")};
  for (const Value& value : texts) {
    ASSERT_TRUE(value.as<std::string>());
    EXPECT_EQ(*value.as<std::string>(), "seven");
  }
  EXPECT_EQ(*Value(INT64_MIN).as<std::int64_t>(), INT64_MIN);
  EXPECT_EQ(*Value(UINT64_MAX).as<double>(), 18446744073709551616.0);
  EXPECT_EQ(*Value(0.5F).as<double>(), 0.5);
  EXPECT_EQ(*Value(true).as<bool>(), true);
  EXPECT_FALSE(Value(true).as<std::int64_t>());
  EXPECT_FALSE(Value(1).as<bool>());
}

}  // namespace
}  // namespace zk
