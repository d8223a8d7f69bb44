#include <ZKStrings/platform/text/UnicodeText.h>

#include <gtest/gtest.h>

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
      {"\xFFzx", "\xFFz"},
      {"z\xFF", "z\xFF"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(firstTwoCharacters(text), expected) << text;
}

TEST(UnicodeText, FindCharacterPassesOverBasesOfOtherCharacters) {
  EXPECT_EQ(findCharacter("ab-c", '-'), 2u);
  EXPECT_EQ(findCharacter("ab", '-'), std::string_view::npos);
  EXPECT_EQ(findCharacter("a-\u0301b-c", '-'), 5u);
  EXPECT_EQ(findCharacter("é-ü", '-'), 2u);
}

TEST(UnicodeText, UpperCasesByTheFullMapping) {
  const std::pair<std::string, std::string> cases[] = {
      {"gb", "GB"}, {"a1-z{", "A1-Z{"}, {"straße", "STRASSE"},        {"ﬁ", "FI"},
      {"i", "I"},   {"ıé", "IÉ"},       {"a\xFFß\xC3", "A\xFFSS\xC3"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(upperCased(text), expected) << text;
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
