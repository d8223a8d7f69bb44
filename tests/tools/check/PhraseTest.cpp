#include <ZKStrings/tools/check/Prose.h>

#include <cstddef>

#include <gtest/gtest.h>

namespace {

using namespace zk::tools;

bool isIn(const char* phrase, const char* text) {
  const Words words(text);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (Phrase(phrase).sizeAt(words, at) > 0) return true;
  }
  return false;
}

TEST(Phrase, MatchesWholeWords) {
  struct Case {
    const char* phrase;
    const char* text;
    bool isIn;
  };
  constexpr Case kCases[] = {
      {"coin", "One Coin!", true},
      {"coin", "Coins", false},
      {"coin*", "COINAGE", true},
      {"coin*", "bitcoin", false},
      {"*coin", "bitcoin", true},
      {"*您*", "关于您的积分", true},
      {"power up*", "Two Power-ups", true},
      {"power up*", "the power of up", false},
      {"extra life", "Extra\nLife", true},
      {"extra life", "an extra", false},
      {"straße", "STRASSE", true},
      {"Ihnen", "Von Ihnen", true},
      {"Ihnen", "von ihnen", false},
      {"coin", "%{coin} <b>x</b>", false},
      {"coin", "%{ coin}", true},
      {"b", "<b>x</b>", false},
      {"zk", "Ask @zk or help@zk.example, http://zk, zk.example", false},
      {"zk", "At the end of zk.", true},
      {"coin", "\xFF coin", true},
      {"", "coin", false},
      {"*", "coin", false},
      {"coin", "", false},
  };
  for (const auto& [phrase, text, expected] : kCases)
    EXPECT_EQ(isIn(phrase, text), expected) << phrase << ": " << text;
}

TEST(Phrase, KeepsOffsetsAfterPlaceholdersAndHandles) {
  const Words words("%{name}, @zk: los");
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words.offsetOf(0), 14u);
}

}  // namespace
