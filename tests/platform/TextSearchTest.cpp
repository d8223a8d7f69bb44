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
      {"\xFF\u0301", "\xFF", "#\u0301"},
      {"\uAC01\u0301\u0316", "\u1100\u1161\u11A8\u0316\u0301", "#"},
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

/// A random text of some of `pieces`.
template <std::size_t kSize>
std::string mixed(const std::string (&pieces)[kSize], std::size_t most, std::mt19937& random) {
  std::string text;
  for (auto i = random() % (most + 1); i > 0; --i) text += pieces[random() % kSize];
  return text;
}

std::string normalized(const icu::Normalizer2& form, const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  std::string result;
  return form.normalize(icu::UnicodeString::fromUTF8(text), status).toUTF8String(result);
}

TEST(TextSearch, ATextIsFoundByItsNormalForms) {
  const std::string pieces[] = {"a",      "\u0301", "\u0316", "\u0327", "\u0345",     "\u0323",     "é",
                                "\u1100", "\u1161", "\u11A8", "\uAC00", "\u1FB7",     "\u05B0",     "\u0E38",
                                "\u3099", "\u304B", "\u0F73", "日",     "\U0001D15F", "\U0001E8D0", "\u0958"};
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2& composition = *icu::Normalizer2::getNFCInstance(status);
  const icu::Normalizer2& decomposition = *icu::Normalizer2::getNFDInstance(status);
  std::mt19937 random(20240901);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = "%" + mixed(pieces, 12, random);
    ASSERT_EQ(replaced(text, normalized(decomposition, text), "#"), "#") << text;
    ASSERT_EQ(replaced(normalized(composition, text), text, "#"), "#") << text;
  }
}

TEST(TextSearch, RepetitiveTargetsAreFoundWhereverTheyStand) {
  const std::string pieces[] = {"é", "x"};
  std::mt19937 random(20240901);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = mixed(pieces, 30, random);
    const std::string target = "é" + mixed(pieces, 7, random);
    std::string expected = text;
    for (std::size_t at = 0; (at = expected.find(target, at)) != std::string::npos; ++at)
      expected.replace(at, target.size(), "#");
    ASSERT_EQ(replaced(text, target, "#"), expected) << text << " " << target;
  }
}

std::string repeated(std::string_view piece, std::size_t times) {
  std::string text;
  while (times-- > 0) text += piece;
  return text;
}

// Each of these would take minutes if the work grew by the square.
TEST(TextSearch, LongTextsThatDeferEveryDecisionAreSearched) {
  constexpr std::size_t kMany = 250000;
  const std::string marks = repeated("\u0301\u0316", kMany);
  EXPECT_EQ(replaced("a" + marks, "á", "#"), "a" + marks);
  EXPECT_EQ(replaced("a" + marks, "a" + repeated("\u0316", kMany) + repeated("\u0301", kMany), "#"), "#");
  EXPECT_EQ(replaced(repeated("é", 2 * kMany), repeated("é", kMany) + "x", "#"), repeated("é", 2 * kMany));
  EXPECT_EQ(replaced(repeated("a", 2 * kMany) + "b", repeated("a", kMany) + "b", "#"),
            repeated("a", kMany) + "#");
  EXPECT_EQ(replaced(repeated("\u1161", kMany), "\u1161\u1161x", "#"), repeated("\u1161", kMany));
  EXPECT_EQ(replaced(repeated("%{é}", kMany), "%{é}", "%{é}%{é}"), repeated("%{é}", 2 * kMany));
  EXPECT_EQ(canonicalForm("à" + marks),
            "a" + repeated("\u0316", kMany) + "\u0300" + repeated("\u0301", kMany));
  EXPECT_EQ(canonicalForm("\xFF\u0301é\xC3"), "\xFF\u0301e\u0301\xC3");
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
    const std::string text = mixed(pieces, 11, random);
    for (const char* target : {"%{a}", "a", "}", "e", "{a"}) {
      ASSERT_TRUE(AsciiSearch::serves(target));
      ASSERT_EQ(all(AsciiSearch(text, target)), all(CanonicalSearch(text, target))) << text << " " << target;
    }
  }
}

}  // namespace
}  // namespace zk
