#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/platform/text/TextSearch.h>

#include <algorithm>
#include <random>
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
      {"%{a}%{c}}", {{"c", "b"}, {"a}b", "x"}, {"a", "y"}}, "x"},
      {"%{b}%{a}", {{"a", "\u0301"}, {"b", "x"}}, "%{b}\u0301"},
      {"100% %{a}%", {{"a", "5%"}}, "100% 5%%"},
  };
  for (const Case& item : cases)
    EXPECT_EQ(applySubstitutions(item.text, item.substitutions), item.expected) << item.text;
  const std::string longName(500, 'n');
  EXPECT_EQ(applySubstitutions("%{" + longName + "}", {{longName, "x"}}), "x");
}

TEST(Substitution, IsOnePairAfterTheOther) {
  const std::string pieces[] = {
      "%{a}", "%{b}",   "%{ab}", "%{}",  "%",          "{",       "}",    "a",
      "b",    "\u0301", "é",     "%{é}", "%{e\u0301}", "%{a%{b}", "\xFF", "some longer text "};
  std::string names[] = {"a", "b", "ab", "", "é", "a%{b", "%", "c}", "a}b", "a}%{b", "{"};
  std::mt19937 random(20240901);
  const auto mixed = [&](std::size_t most) {
    std::string text;
    for (auto i = random() % (most + 1); i > 0; --i) text += pieces[random() % std::size(pieces)];
    return text;
  };
  for (int round = 0; round < 50000; ++round) {
    const std::string text = mixed(8);
    const std::string values[] = {mixed(2), mixed(1), mixed(1)};
    std::shuffle(std::begin(names), std::end(names), random);
    std::string expected = text;
    for (int i = 0; i < 3; ++i) replaceOccurrences(expected, "%{" + names[i] + "}", values[i]);
    ASSERT_EQ(applySubstitutions(text, {{names[0], values[0]}, {names[1], values[1]}, {names[2], values[2]}}),
              expected)
        << text << " " << names[0] << " " << names[1] << " " << names[2];
  }
}

TEST(Substitution, FillsInTextsOfEverySize) {
  for (std::size_t size = 0; size < 1200; ++size) {
    const std::string plain(size, 'x');
    EXPECT_EQ(applySubstitutions(plain + "%{a}" + plain, {{"a", "kim"}}), plain + "kim" + plain) << size;
    EXPECT_EQ(applySubstitutions("%{a} 5% %{a}", {{"a", plain}}), plain + " 5% " + plain) << size;
  }
}

TEST(SubstitutionDeathTest, ARepeatedNameStopsTheProcess) {
  EXPECT_DEATH((Substitutions{{"a", "1"}, {"b", "2"}, {"a", "1"}}), "^$");
}

}  // namespace
}  // namespace zk
