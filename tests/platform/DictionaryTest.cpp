#include <ZKStrings/platform/Dictionary.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

namespace zk {
namespace {

template <class... Types>
constexpr bool takesNone = !(std::is_constructible_v<Value, Types> || ...);
static_assert(takesNone<void*, const int*, char, char32_t>);

TEST(Value, TakesEveryKindOfNumberAndText) {
  const signed char seven = 7;
  const unsigned short unsignedSeven = 7;
  for (const Value& value : {Value(seven), Value(unsignedSeven), Value(7), Value(7U), Value(7L), Value(7ULL)})
    EXPECT_EQ(*value.as<std::int64_t>(), 7);
  for (const Value& value : {Value("seven"), Value(std::string("seven")), Value(std::string_view("seven"))})
    EXPECT_EQ(*value.as<std::string>(), "seven");
  EXPECT_EQ(*Value(INT64_MIN).as<std::int64_t>(), INT64_MIN);
  EXPECT_EQ(*Value(UINT64_MAX).as<double>(), 18446744073709551616.0);
  EXPECT_EQ(*Value(0.5F).as<double>(), 0.5);
  EXPECT_TRUE(*Value(true).as<bool>());
  EXPECT_FALSE(Value(true).as<std::int64_t>() || Value(1).as<bool>());
}

}  // namespace
}  // namespace zk
