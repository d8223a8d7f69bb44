#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tests/RandomTexts.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace zk {
namespace {

using namespace std::string_view_literals;

TEST(UnicodeText, FirstTwoCharactersAreUserPerceivedAndBytesThatAreNotUtf8CharactersOfTheirOwn) {
  const std::pair<std::string_view, std::size_t> cases[] = {
      {"", 0},          {"pt-BR", 2}, {"\xFFzx", 2}, {"z\xFF", 2}, {"a\xA0\u200D", 2}, {"\xFF\u0301x", 3},
      {"\xE2\x80zx", 2}};
  for (const auto& [text, size] : cases) EXPECT_EQ(firstTwoCharacters(text), text.substr(0, size)) << text;
  for (std::string letter = "e"; letter.size() < 300; letter += "\u0301")
    EXPECT_EQ(firstTwoCharacters("z" + letter + "z"), "z" + letter) << letter.size();
}

/// Returns the text with a | after each cluster.
std::string dividedByICU(const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::UnicodeString whole = icu::UnicodeString::fromUTF8(text);
  const std::unique_ptr<icu::BreakIterator> borders(icu::BreakIterator::createCharacterInstance("", status));
  borders->setText(whole);
  std::string divided;
  for (int begin = 0, end; (end = borders->next()) != icu::BreakIterator::DONE; begin = end)
    whole.tempSubStringBetween(begin, end).toUTF8String(divided) += '|';
  return divided;
}

TEST(UnicodeText, ClustersAreThoseOfICU) {
  testing::RandomTexts texts({"a",      "\r",         "\n",         "\u0001",     "\u0301",     "\u200D",
                              "\u0903", "\u0600",     "\u1100",     "\u1161",     "\u11A8",     "\uAC00",
                              "\uAC01", "\U0001F1E9", "\U0001F389", "\U0001F469", "\U0001F3FD", "©",
                              "\uFE0F", "é",          "日"});
  for (int round = 0; round < 40000; ++round) {
    const std::string text = texts.next(10);
    std::string divided;
    for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(internal::firstClusterSize(rest)))
      divided.append(rest.substr(0, internal::firstClusterSize(rest))) += '|';
    ASSERT_EQ(divided, dividedByICU(text));
  }
}

TEST(UnicodeText, FindCharacterSkipsBasesOfOtherCharacters) {
  const std::pair<std::string_view, std::size_t> cases[] = {
      {"ab-c", 2},     {"ab", std::string_view::npos}, {"a-\u0301b-c", 5}, {"é-ü", 2}, {"\u0600-x-", 4},
      {"\xFF-\xFF", 1}};
  for (const auto& [text, place] : cases) EXPECT_EQ(findCharacter(text, '-'), place) << text;
}

TEST(UnicodeText, UpperCasesByTheFullMapping) {
  EXPECT_EQ(upperCased("a1-z{ straße ıé"), "A1-Z{ STRASSE IÉ");
  EXPECT_EQ(upperCased("a\xFFß\xC3"), "A\xFFSS\xC3");
  for (char32_t letter = 1; letter <= 0x10FFFF; ++letter) {
    std::string text;
    std::string expected;
    appendCodePoint(text, letter);
    icu::UnicodeString::fromUTF8(text).toUpper("").toUTF8String(expected);
    ASSERT_EQ(upperCased(text), expected) << std::uint32_t{letter};
  }
}

TEST(UnicodeText, RecognisesLettersAndDigits) {
  for (const char32_t digit : U"7\u0663"sv) EXPECT_TRUE(isDecimalDigit(digit)) << std::uint32_t{digit};
  for (const char32_t other : U"z日\u0301²_ \U0001F389"sv)
    EXPECT_FALSE(isDecimalDigit(other)) << std::uint32_t{other};
  for (const char32_t letter : U"z日\u03017\u0663"sv)
    EXPECT_TRUE(isLetterMarkOrDigit(letter)) << std::uint32_t{letter};
  for (const char32_t other : U"²_ 🎉"sv) EXPECT_FALSE(isLetterMarkOrDigit(other)) << std::uint32_t{other};
}

TEST(UnicodeText, RecognisesUtf8) {
  for (const char* text : {"", "plain ascii, long", "éééééééééé", "12345678é", "🎉"})
    EXPECT_TRUE(isUtf8(text)) << text;
  for (const char* text :
       {"\xFF", "1234567\xC3", "12345678\xED\xA0\x80", "\xC0\x80", "\xF4\x90\x80\x80", "abc\x80"})
    EXPECT_FALSE(isUtf8(text)) << text;
}

}  // namespace
}  // namespace zk
