#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tools/check/Prose.h>

#include <cstddef>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

bool isIn(const std::string& phrase, const std::string& text) {
  const Words words = proseWords(text);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (Phrase(phrase).sizeAt(words, at) > 0) return true;
  }
  return false;
}

TEST(Phrase, MatchesWholeWords) {
  auto rows = zk::testing::rowsOf<std::string, std::string, bool>("tools/check/PhraseTest.json");
  rows.emplace_back("coin", "\xFF coin", true);
  for (const auto& [phrase, text, expected] : rows)
    EXPECT_EQ(isIn(phrase, text), expected) << phrase << ": " << text;
}

TEST(Phrase, KeepsOffsetsAfterPlaceholdersAndHandles) {
  const Words words = proseWords("%{name}, @zk: los");
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words[0].offset, 14u);
}

}  // namespace
