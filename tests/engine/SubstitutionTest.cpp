#include <ZKStrings/engine/PlaceholderSubstitution.h>

#include <string>

#include <gtest/gtest.h>

namespace zk {
namespace {

TEST(Substitution, FillsInThePlaceholdersThatHaveAText) {
  struct Case {
    std::string text;
    Substitutions substitutions;
    std::string expected;
  };
  const Case cases[] = {
      {"%{active}/%{limit} players", {}, "%{active}/%{limit} players"},
      {"%{active}/%{limit} players", {{"active", "12"}, {"limit", "50"}}, "12/50 players"},
      {"%{a} and %{a}", {{"a", "x"}}, "x and x"},
      {"%{username}", {{"Username", "x"}, {"user", "y"}}, "%{username}"},
      {"%{a}}", {{"a", "x"}}, "x}"},
      {"%{ a}", {{"a", "x"}}, "%{ a}"},
      {"%{}", {{"", "x"}}, "x"},
      {"%{a}", {{"a", "100% {sure} %{"}}, "100% {sure} %{"},
      {"%{a}", {{"a", "%{b}"}, {"b", "x"}}, "x"},
      {"%{a}", {{"b", "x"}, {"a", "%{b}"}}, "%{b}"},
      {"%{a}", {{"a", "%{a}"}}, "%{a}"},
      {"Größe: %{größe} %{gro\u0308ße}", {{"größe", "XL"}}, "Größe: XL XL"},
      {"%{a}%{b}%{c}%{d}%{e}%{f}",
       {{"f", "6"}, {"e", "5"}, {"d", "4"}, {"c", "3"}, {"b", "2"}, {"a", "1"}},
       "123456"},
      {"%{a} \xFF", {{"a", "\xFE"}}, "\xFE \xFF"},
  };
  for (const Case& item : cases)
    EXPECT_EQ(applySubstitutions(item.text, item.substitutions), item.expected) << item.text;
  const std::string longName(500, 'n');
  EXPECT_EQ(applySubstitutions("%{" + longName + "}", {{longName, "x"}}), "x");
}

TEST(SubstitutionDeathTest, ARepeatedNameStopsTheProcess) {
  EXPECT_DEATH((Substitutions{{"a", "1"}, {"b", "2"}, {"a", "1"}}), "^$");
}

}  // namespace
}  // namespace zk
