#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/region/Country.h>
#include <ZKStrings/tests/CommandOutput.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

namespace zk {
namespace {

/// How the comments of GraphemeBreakTest.txt name the rule that holds conjuncts of Indic scripts together. It came with
/// Unicode 15.1, and the module's rules are those of 15.0.
constexpr const char* kConjuncts = "[9.3]";

/// Unicode's own files, as Debian's package unicode-data brings them.
class UnicodeData : public ::testing::Test {
 protected:
  using Line = std::vector<std::string>;

  /// The lines of a file, without comments, each divided at semicolons. None where the package is missing.
  std::vector<Line> linesOf(const std::string& name) {
    const std::string path = "/usr/share/unicode/" + name;
    std::istringstream file(
        testing::outputOf("cat " + path + " 2>/dev/null || bzcat " + path + ".bz2 2>/dev/null").output);
    std::vector<Line> lines;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("# ") && version_.empty()) version_ = line.substr(line.find('-') + 1);
      if (line.find(kConjuncts) != std::string::npos) {
        ++conjuncts_;
        continue;
      }
      std::istringstream fields(line.substr(0, line.find('#')));
      Line divided;
      for (std::string field; std::getline(fields, field, ';');) divided.push_back(field);
      if (!divided.empty() && !divided[0].starts_with('@')) lines.push_back(divided);
    }
    return lines;
  }

  /// Whether the files or ICU cannot know a character, because the other is of a later Unicode. Counts those lines.
  bool isTooNew(std::u32string_view characters) {
    UVersionInfo ofFile;
    UVersionInfo ofICU;
    u_versionFromString(ofFile, version_.c_str());
    u_getUnicodeVersion(ofICU);
    const auto isLater = [](const UVersionInfo& one, const UVersionInfo& other) {
      return std::lexicographical_compare(other, other + 2, one, one + 2);
    };
    const bool isLeft = std::any_of(characters.begin(), characters.end(), [&](char32_t character) {
      const auto number = static_cast<UChar32>(character);
      UVersionInfo since;
      u_charAge(number, since);
      const bool isKnown = u_charType(number) != U_UNASSIGNED;
      return isKnown ? isLater(since, ofFile) : isLater(ofFile, ofICU);
    });
    left_ += isLeft ? 1 : 0;
    return isLeft;
  }

  void TearDown() override {
    if (conjuncts_ > 0) std::cout << "left out " << conjuncts_ << " lines with a rule of Unicode 15.1\n";
    if (left_ == 0) return;
    std::cout << "left out " << left_ << " lines: the files are of Unicode " << version_ << ", ICU of "
              << U_UNICODE_VERSION << "\n";
  }

 private:
  std::string version_;  // of the file, such as "15.0.0.txt"
  std::size_t left_ = 0;
  std::size_t conjuncts_ = 0;
};

constexpr const char* kMissing = "the package unicode-data (or bzip2) is not installed";

/// The characters whose numbers `hexadecimal` spells: "0044 0307".
std::u32string charactersOf(const std::string& hexadecimal) {
  std::u32string characters;
  std::istringstream numbers(hexadecimal);
  for (std::uint32_t number = 0; numbers >> std::hex >> number;) characters += static_cast<char32_t>(number);
  return characters;
}

std::string utf8(std::u32string_view characters) {
  std::string text;
  for (const char32_t character : characters) appendCodePoint(text, character);
  return text;
}

TEST_F(UnicodeData, TheFirstTwoCharactersEndAtABreak) {
  const std::vector<Line> lines = linesOf("auxiliary/GraphemeBreakTest.txt");
  if (lines.empty()) GTEST_SKIP() << kMissing;
  for (const Line& line : lines) {
    std::u32string all;
    std::u32string firstTwo;
    int breaks = 0;
    std::istringstream marks(line.at(0));
    for (std::string mark; marks >> mark;) {
      if (mark == "÷") ++breaks;
      if (mark == "÷" || mark == "×") continue;
      all += charactersOf(mark);
      if (breaks <= 2) firstTwo = all;
    }
    if (isTooNew(all)) continue;
    EXPECT_EQ(firstTwoCharacters(utf8(all)), utf8(firstTwo)) << line[0];
  }
}

TEST_F(UnicodeData, FlagsShowTheFullUpperCaseOfEveryCharacter) {
  std::map<char32_t, std::u32string> capitals;
  const std::vector<Line> special = linesOf("SpecialCasing.txt");
  for (const Line& line : linesOf("UnicodeData.txt"))
    if (!line.at(12).empty()) capitals[charactersOf(line[0])[0]] = charactersOf(line[12]);
  if (special.empty() || capitals.empty()) GTEST_SKIP() << kMissing;
  for (const Line& line : special) {
    const bool hasConditions = line.size() > 5;  // a language, or what stands around it
    if (!hasConditions) capitals[charactersOf(line[0])[0]] = charactersOf(line[3]);
  }
  constexpr char32_t kToFlag = 0x1F1E6 - U'A';
  for (char32_t letter = 0; letter <= 0x10FFFF; ++letter) {
    const bool isSurrogate = letter >= 0xD800 && letter <= 0xDFFF;
    const auto capital = static_cast<char32_t>(u_toupper(static_cast<UChar32>(letter)));
    if (isSurrogate || isTooNew(std::u32string{letter, capital})) continue;
    const auto known = capitals.find(letter);
    std::u32string flag = known == capitals.end() ? std::u32string(1, letter) : known->second;
    for (char32_t& character : flag) character += kToFlag;
    const Dictionary country = {{"name", ""}, {"phoneCode", 1}, {"iso", utf8({&letter, 1})}};
    ASSERT_EQ(Country::fromDictionary(country)->emoji(), utf8(flag)) << std::hex << std::uint32_t{letter};
  }
}

// The fields are a text, its forms NFC and NFD, and its forms by compatibility, NFKC and NFKD.
TEST_F(UnicodeData, PlaceholdersAreFilledInWhateverTheNormalFormOfTheirNames) {
  const std::vector<Line> lines = linesOf("NormalizationTest.txt");
  if (lines.empty()) GTEST_SKIP() << kMissing;
  for (const Line& line : lines) {
    if (isTooNew(charactersOf(line.at(0)))) continue;
    for (std::size_t i = 0; i < 5; ++i) {
      for (std::size_t j = 0; j < 5; ++j) {
        const bool areEquivalent = (i < 3) == (j < 3) || line.at(2) == line.at(4);
        const std::string name = utf8(charactersOf(line[i]));
        const std::string placeholder = "%{" + utf8(charactersOf(line[j])) + "}";
        ASSERT_EQ(applySubstitutions(placeholder, {{name, "x"}}), areEquivalent ? "x" : placeholder)
            << line[i] << " for " << line[j];
      }
    }
  }
}

}  // namespace
}  // namespace zk
