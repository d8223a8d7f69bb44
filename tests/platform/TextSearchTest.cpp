#include <ZKStrings/platform/text/TextSearch.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace zk {
namespace {

std::string replaced(std::string text, std::string_view target, std::string_view replacement) {
  replaceOccurrences(text, target, replacement);
  return text;
}

TEST(TextSearch, ReplacesCanonicallyEquivalentOccurrences) {
  struct Case {
    std::string text, target, expected;  // the replacement is "#"
  };
  const Case cases[] = {
      {"a%{x}b%{x}", "%{x}", "a#b#"},
      {"aaaa", "aa", "##"},
      {"abc", "", "abc"},
      {"abc", "d", "abc"},
      {"%{X}", "%{x}", "%{X}"},
      {"%{caf\u00E9}", "%{cafe\u0301}", "#"},
      {"%{cafe\u0301}", "%{caf\u00E9}", "#"},
      {"%{cafe\u0301}", "%{cafe}", "%{cafe\u0301}"},
      {"\u00E9", "e", "\u00E9"},
      {"%{x}\u0301 %{x}", "%{x}", "%{x}\u0301 #"},
      {"%{\u212A}", "%{K}", "#"},
      {"%{K}", "%{\u212A}", "#"},
      {"\u037E`", ";", "#`"},
      {"\uFB01", "fi", "\uFB01"},
      {"q\u0307\u0323", "q\u0323\u0307", "#"},
      {"\uAC01", "\u1100\u1161\u11A8", "#"},
      {"\uAC01", "\u1100", "\uAC01"},
      {"\xFF%{x}\xFF", "%{x}", "\xFF#\xFF"},
      {"a\xFF\xC3"
       "b",
       "\xFF\xC3", "a#b"},
      {"é\xFF", "\xC3", "é\xFF"},
  };
  for (const Case& item : cases)
    EXPECT_EQ(replaced(item.text, item.target, "#"), item.expected) << item.text << " " << item.target;
  EXPECT_EQ(replaced("%{a}", "%{a}", "%{a}%{a}"), "%{a}%{a}");
}

template <class Search>
std::vector<std::pair<std::size_t, std::size_t>> all(Search search) {
  std::vector<std::pair<std::size_t, std::size_t>> found;
  while (const auto next = search.next()) found.emplace_back(next->begin, next->end);
  return found;
}

TEST(TextSearch, TheQuickSearchServesOnlyWhatNoOtherCharacterIsEquivalentTo) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2& decomposition = *icu::Normalizer2::getNFDInstance(status);
  for (UChar32 codePoint = 0x80; codePoint <= 0x10FFFF; ++codePoint) {
    icu::UnicodeString plain;
    if (!decomposition.getDecomposition(codePoint, plain) || plain.length() != 1 || plain[0] >= 0x80)
      continue;
    EXPECT_FALSE(AsciiSearch::serves(std::string(1, static_cast<char>(plain[0])))) << codePoint;
  }
}

TEST(TextSearch, BothSearchesFindTheSame) {
  const std::string pieces[] = {"%{a}",   "%", "{",      "a",    "}",        "\u0301", "é",      "e", "K",
                                "\u212A", "🎉", "\u200D", "\xFF", "\xE2\x84", "\uFE0F", "\u1161", " "};
  std::mt19937 random(20240901);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (auto i = random() % 12; i > 0; --i) text += pieces[random() % std::size(pieces)];
    for (const char* target : {"%{a}", "a", "}", "e", "{a"}) {
      ASSERT_TRUE(AsciiSearch::serves(target));
      ASSERT_EQ(all(AsciiSearch(text, target)), all(CanonicalSearch(text, target))) << text << " " << target;
    }
  }
}

}  // namespace
}  // namespace zk
