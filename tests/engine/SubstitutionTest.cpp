#include <ZKStrings/engine/Substitutions.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tests/RandomTexts.h>
#include <ZKStrings/tests/Rows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

namespace zk {
namespace {

using internal::applySubstitutions;
using Texts = std::vector<std::pair<std::string, std::string>>;

TEST(Substitution, FillsInThePlaceholdersThatHaveAText) {
  for (const auto& [text, pairs, expected] :
       testing::rowsOf<std::string, Texts, std::string>("engine/SubstitutionTest.json"))
    EXPECT_EQ(applySubstitutions(text, pairs), expected) << text;
  EXPECT_EQ(applySubstitutions("%{a} \xFF", {{"a", "\xFE"}}), "\xFE \xFF");
  const std::string longName(500, 'n');
  EXPECT_EQ(applySubstitutions("%{" + longName + "}", {{longName, "x"}}), "x");
}

/// As many pairs as asked for: n0 and 0, n1 and 1, ...
Texts numbered(int count) {
  Texts pairs;
  for (int i = 0; i < count; ++i)
    pairs.emplace_back(std::string("n").append(std::to_string(i)), std::to_string(i));
  return pairs;
}

TEST(Substitution, TakesAnyRangeOfPairs) {
  const std::map<std::string, std::string> map = {{"a", "1"}, {"b", "2"}};
  EXPECT_EQ(applySubstitutions("%{a}%{b}", map), "12");
  const std::pair<const char*, std::string_view> array[] = {{"a", "3"}, {"b", "4"}};
  EXPECT_EQ(applySubstitutions("%{a}%{b}", array), "34");
  EXPECT_EQ(applySubstitutions("%{a}", Texts()), "%{a}");
  EXPECT_EQ(applySubstitutions("%{maxPoints}%{minPoints}", {{"minPoints", "1"}, {"maxPoints", "2"}}), "21");
  EXPECT_EQ(applySubstitutions("%{n0} %{n4}", numbered(5)), "0 4");
  EXPECT_EQ(applySubstitutions("%{n0} %{n999}", numbered(1000)), "0 999");
  static_assert(!std::is_constructible_v<Substitutions, std::vector<std::string>>);
  static_assert(!std::is_convertible_v<std::map<std::string, int>, Substitutions>);
  static_assert(!std::is_convertible_v<std::vector<std::pair<int, std::string>>, Substitutions>);
}

TEST(Substitution, OnlyACombiningMarkKeepsAPlaceholderFromBeingFilledIn) {
  int marks = 0;
  for (char32_t character = 1; character <= 0x10FFFF; ++character) {
    std::string next;
    appendCodePoint(next, character);
    if (next.empty()) continue;
    const bool isMark =
        u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_LEAD_CANONICAL_COMBINING_CLASS) != 0;
    marks += isMark ? 1 : 0;
    ASSERT_EQ(applySubstitutions("%{b}" + next, {{"b", "x"}}), (isMark ? "%{b}" : "x") + next)
        << std::uint32_t{character};
    if (isMark) continue;
    ASSERT_EQ(applySubstitutions("%{b}%{a}", {{"a", next}, {"b", "x"}}), "x" + next)
        << std::uint32_t{character};
    ASSERT_EQ(applySubstitutions("%{b}%{a}", {{"b", "x"}, {"a", next}}), "x" + next)
        << std::uint32_t{character};
  }
  EXPECT_GT(marks, 900);
}

TEST(Substitution, IsAValue) {
  const std::string text = "%{n0}%{n1}%{n2}%{n3}%{n4}%{n5}";
  for (const int count : {0, 1, 5, 6}) {
    const Texts pairs = numbered(count);
    const Substitutions original = pairs;
    const std::string expected = applySubstitutions(text, original);
    Substitutions copy = original;
    Substitutions moved = std::move(copy);
    copy = std::move(moved);
    moved = copy;
    EXPECT_EQ(applySubstitutions(text, copy), expected) << count;
    EXPECT_EQ(applySubstitutions(text, moved), expected) << count;
    moved = Substitutions{{"n0", "-"}};
    EXPECT_EQ(applySubstitutions("%{n0}%{n1}", moved), "-%{n1}") << count;
  }
}

TEST(Substitution, IsOnePairAfterTheOther) {
  testing::RandomTexts texts({"%{a}", "%{b}", "%{ab}", "%{}", "%", "{", "}", "a", "b", "\u0301", "é", "%{é}",
                              "%{e\u0301}", "%{a%{b}", "\xFF", "some longer text "});
  std::string names[] = {"a", "b", "ab", "", "é", "a%{b", "%", "c}", "a}b", "a}%{b", "{"};
  std::mt19937 random(20240901);
  for (int round = 0; round < 50000; ++round) {
    const std::string text = texts.next(8);
    const std::string values[] = {texts.next(2), texts.next(1), texts.next(1)};
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
    EXPECT_EQ(applySubstitutions(plain + "%{a}", {{"a", plain}}), plain + plain) << size;
    for (const std::size_t whole : {504U, 512U}) {
      const std::string rest(whole - std::min(whole, size), 'y');
      EXPECT_EQ(applySubstitutions("%{a}" + plain, {{"a", rest}}), rest + plain) << size;
    }
  }
}

TEST(SubstitutionDeathTest, ARepeatedNameStopsTheProcess) {
  EXPECT_DEATH((Substitutions{{"a", "1"}, {"b", "2"}, {"a", "1"}}), "^$");
  EXPECT_DEATH((Substitutions{{"", "1"}, {"", "2"}}), "^$");
  EXPECT_DEATH((Substitutions{{"größe", "1"}, {"gro\u0308ße", "2"}}), "^$");
  EXPECT_DEATH((Substitutions{{"K", "1"}, {"\u212A", "2"}}), "^$");
  EXPECT_DEATH((Substitutions{{"\u212Be", "1"}, {"A\u030Ae", "2"}}), "^$");
  Texts many = numbered(10);
  many.emplace_back("n0", "again");
  EXPECT_DEATH(Substitutions{many}, "^$");
  many.back().first = "é";
  many.emplace_back("e\u0301", "again");
  EXPECT_DEATH(Substitutions{many}, "^$");
}

}  // namespace
}  // namespace zk
