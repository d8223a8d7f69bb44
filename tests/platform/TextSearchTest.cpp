#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tests/RandomTexts.h>
#include <ZKStrings/tests/Rows.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace zk {
namespace {

using testing::RandomTexts;

std::string replaced(std::string text, std::string_view target, std::string_view replacement = "#") {
  replaceOccurrences(text, target, replacement);
  return text;
}

TEST(TextSearch, ReplacesCanonicallyEquivalentOccurrences) {
  auto rows = testing::rowsOf<std::string, std::string, std::string>("platform/TextSearchTest.json");
  // JSON cannot contain bytes that are not UTF-8.
  rows.emplace_back("\xFF%{x}\xFF", "%{x}", "\xFF#\xFF");
  rows.emplace_back("a\xFF\xC3z", "\xFF\xC3", "a#z");
  rows.emplace_back("é\xFF", "\xC3", "é\xFF");
  rows.emplace_back("\xFF\u0301", "\xFF", "#\u0301");
  for (const auto& [text, target, expected] : rows)
    EXPECT_EQ(replaced(text, target), expected) << text << " " << target;
  EXPECT_EQ(replaced("%{a}", "%{a}", "%{a}%{a}"), "%{a}%{a}");
}

std::string normalized(const icu::Normalizer2& form, const std::string& text) {
  UErrorCode status = U_ZERO_ERROR;
  std::string result;
  return form.normalize(icu::UnicodeString::fromUTF8(text), status).toUTF8String(result);
}

TEST(TextSearch, ATextIsFoundByItsNormalForms) {
  RandomTexts texts({"a",      "\u0301", "\u0316", "\u0327", "\u0345",     "\u0323",     "é",
                     "\u1100", "\u1161", "\u11A8", "\uAC00", "\u1FB7",     "\u05B0",     "\u0E38",
                     "\u3099", "\u304B", "\u0F73", "日",     "\U0001D15F", "\U0001E8D0", "\u0958"});
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2& composition = *icu::Normalizer2::getNFCInstance(status);
  const icu::Normalizer2& decomposition = *icu::Normalizer2::getNFDInstance(status);
  for (int round = 0; round < 20000; ++round) {
    const std::string text = "%" + texts.next(12);
    ASSERT_EQ(replaced(text, normalized(decomposition, text)), "#") << text;
    ASSERT_EQ(replaced(normalized(composition, text), text), "#") << text;
  }
  for (char32_t character = 1; character <= 0x10FFFF; ++character) {
    std::string text;
    appendCodePoint(text, character);
    const std::string form = normalized(decomposition, text);
    ASSERT_EQ(canonicalForm(text), form) << std::uint32_t{character};
    // An ASCII target is found in every spelling.
    if (text.empty()) continue;
    ASSERT_EQ(replaced(text, form), "#") << std::uint32_t{character};
  }
}

TEST(TextSearch, FindsRepetitiveTargetsEverywhere) {
  RandomTexts texts({"é", "x"});
  for (int round = 0; round < 20000; ++round) {
    const std::string text = texts.next(30);
    const std::string target = "é" + texts.next(7);
    std::string expected = text;
    for (std::size_t at = 0; (at = expected.find(target, at)) != std::string::npos; ++at)
      expected.replace(at, target.size(), "#");
    ASSERT_EQ(replaced(text, target), expected) << text << " " << target;
  }
}

std::string repeated(std::string_view piece, std::size_t times = 250000) {
  std::string text;
  while (times-- > 0) text += piece;
  return text;
}

// Each of these would take minutes if the cost were quadratic.
TEST(TextSearch, SearchesLongRepetitiveTexts) {
  const std::string marks = repeated("\u0301\u0316");
  const std::string sorted = repeated("\u0316") + repeated("\u0301");
  EXPECT_EQ(replaced("a" + marks, "á"), "a" + marks);
  EXPECT_EQ(replaced("a" + marks, "a" + sorted), "#");
  EXPECT_EQ(replaced(repeated("éé"), repeated("é") + "x"), repeated("éé"));
  EXPECT_EQ(replaced(repeated("aa") + "b", repeated("a") + "b"), repeated("a") + "#");
  EXPECT_EQ(replaced(repeated("\u1161"), "\u1161\u1161x"), repeated("\u1161"));
  EXPECT_EQ(replaced(repeated("%{é}"), "%{é}", "%{é}%{é}"), repeated("%{é}%{é}"));
  EXPECT_EQ(canonicalForm("à" + marks), "a" + repeated("\u0316") + "\u0300" + repeated("\u0301"));
  EXPECT_EQ(canonicalForm("\xFF\u0301é\xC3"), "\xFF\u0301e\u0301\xC3");
}

}  // namespace
}  // namespace zk
