#include <ZKStrings/platform/text/GraphemeClusters.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/ubrk.h>
#include <unicode/utext.h>

namespace zk {
namespace {

TEST(UnicodeText, FirstTwoCharactersAreUserPerceived) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"x", "x"},
      {"en", "en"},
      {"pt-BR", "pt"},
      {"de\u0301x", "de\u0301"},
      {"e\u0301n-US", "e\u0301n"},
      {"\r\nxy", "\r\nx"},
      {"a\r\nb", "a\r\n"},
      {"日本語", "日本"},
      {"👨‍👩‍👧🇩🇪x", "👨‍👩‍👧🇩🇪"},
      {"🇩🇪", "🇩🇪"},
      {"\u1100\u1161\u11A8\uAC00\u11A8x", "\u1100\u1161\u11A8\uAC00\u11A8"},
      {"\xFFzx", "\xFFz"},
      {"z\xFF", "z\xFF"},
      {"a\xA0\u200D", "a\xA0"},
      {"\xFF\u0301x", "\xFF\u0301"},
      {"\xE2\x80zx", "\xE2\x80"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(firstTwoCharacters(text), expected) << text;
}

std::vector<std::size_t> bordersByICU(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  UText opened = UTEXT_INITIALIZER;
  utext_openUTF8(&opened, text.data(), static_cast<std::int64_t>(text.size()), &status);
  UBreakIterator* const iterator = ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status);
  ubrk_setUText(iterator, &opened, &status);
  std::vector<std::size_t> borders;
  for (auto at = ubrk_next(iterator); at != UBRK_DONE; at = ubrk_next(iterator))
    borders.push_back(static_cast<std::size_t>(at));
  ubrk_close(iterator);
  utext_close(&opened);
  return borders;
}

TEST(UnicodeText, ClustersEndWhereICUSees) {
  const std::string pieces[] = {"a",      "\r",     "\n",     "\u0001", "\u0301", "\u200D", "\u0903",
                                "\u0600", "\u1100", "\u1161", "\u11A8", "\uAC00", "\uAC01", "🇩",
                                "🎉",      "👩",      "🏽",   "©",      "\uFE0F", "é",      "日"};
  std::mt19937 random(20240901);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (auto i = 1 + random() % 10; i > 0; --i) text += pieces[random() % std::size(pieces)];
    std::vector<std::size_t> borders;
    for (std::size_t at = 0; at < text.size();) {
      at += firstClusterSize(std::string_view(text).substr(at));
      borders.push_back(at);
    }
    ASSERT_EQ(borders, bordersByICU(text)) << text;
    ASSERT_EQ(firstTwoCharacters(text), firstTwoClusters(text)) << text;
  }
}

TEST(UnicodeText, FindCharacterPassesOverBasesOfOtherCharacters) {
  EXPECT_EQ(findCharacter("ab-c", '-'), 2u);
  EXPECT_EQ(findCharacter("ab", '-'), std::string_view::npos);
  EXPECT_EQ(findCharacter("a-\u0301b-c", '-'), 5u);
  EXPECT_EQ(findCharacter("é-ü", '-'), 2u);
  EXPECT_EQ(findCharacter("\u0600-x-", '-'), 4u);
  EXPECT_EQ(findCharacter("\xFF-\xFF", '-'), 1u);
}

TEST(UnicodeText, UpperCasesByTheFullMapping) {
  const std::pair<std::string, std::string> cases[] = {
      {"gb", "GB"}, {"a1-z{", "A1-Z{"}, {"straße", "STRASSE"},        {"ﬁ", "FI"},
      {"i", "I"},   {"ıé", "IÉ"},       {"a\xFFß\xC3", "A\xFFSS\xC3"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(upperCased(text), expected) << text;
}

TEST(UnicodeText, TellsLettersAndDigits) {
  struct Case {
    char32_t codePoint;
    bool isLetterMarkOrDigit, isDecimalDigit;
  };
  for (const Case& c : {Case{U'z', true, false}, Case{U'日', true, false}, Case{U'\u0301', true, false},
                        Case{U'7', true, true}, Case{U'\u0663', true, true}, Case{U'²', false, false},
                        Case{U'_', false, false}, Case{U' ', false, false}, Case{U'🎉', false, false}}) {
    EXPECT_EQ(isLetterMarkOrDigit(c.codePoint), c.isLetterMarkOrDigit) << std::uint32_t{c.codePoint};
    EXPECT_EQ(isDecimalDigit(c.codePoint), c.isDecimalDigit) << std::uint32_t{c.codePoint};
  }
}

TEST(UnicodeText, TellsUtf8) {
  for (const char* text : {"", "plain ascii, long", "éééééééééé", "12345678é", "🎉"})
    EXPECT_TRUE(isUtf8(text)) << text;
  for (const char* text :
       {"\xFF", "1234567\xC3", "12345678\xED\xA0\x80", "\xC0\x80", "\xF4\x90\x80\x80", "abc\x80"}) {
    EXPECT_FALSE(isUtf8(text)) << text;
  }
}

}  // namespace
}  // namespace zk
