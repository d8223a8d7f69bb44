#include <ZKStrings/tools/adoption/PositionalText.h>

#include <string_view>
#include <utility>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

TEST(PositionalText, PlaceholdersGetNamesByTheirPlace) {
  constexpr std::pair<std::string_view, std::string_view> kCases[] = {
      {"no arguments, 100% and %%", "no arguments, 100% and %%"},
      {"%@", "%{value}"},
      {"%@ has %d", "%{first} has %{second}"},
      {"%2$@ of %1$ld", "%{second} of %{first}"},
      {"%1$@ and %1$@", "%{value} and %{value}"},
      {"%.2f%% of %lu", "%{first}% of %{second}"},
      {"%-10s|%+5d|%llu", "%{first}|%{second}|%{third}"},
      {"%*d of %-*.*f", "%{second} of %{fifth}"},
      {"100 % de", "100 % de"},
      {"%{name} and %@", "%{name} and %{value}"},
      {"%", "%"},
      {"%1$", "%1$"},
      {"%0$@", "%0$@"},
      {"%99999999999999999999$@", "%99999999999999999999$@"},
      {"%#@", "%#@"}};
  for (const auto& [source, expected] : kCases) {
    const auto pieces = formatPiecesOf(source);
    EXPECT_EQ(withNames(pieces, argumentsOf(pieces)), expected) << source;
  }
}

}  // namespace
}  // namespace zk::tools
