#include <ZKStrings/tools/support/Languages.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

TEST(Languages, HaveTheCodeThatTheWordMeans) {
  const std::pair<const char*, const char*> cases[] = {
      {"sv", "sv"},
      {"swe", "sv"},
      {"sv-SE", "sv"},
      {"sv_SE.UTF-8", "sv"},
      {"Swedish", "sv"},
      {"svenska", "sv"},
      {"estonian", "et"},
      {"est", "et"},
      {"fil", ""},
      {"Filipino", ""},
      {"EN", "en"},
      {"zh-Hans-CN", "zh"},
      {"nob", "nb"},
      {"xx", ""},
      {"", ""},
      {"..", ""},
      {"sv.lproj", "sv"},
      {"/a/sv.lproj/", "sv"},
      {"\xFF\xFE", ""},
      {"resources/de.lproj/Localizable.strings", "de"},
      {"norwegian bokmål", "nb"},
  };
  for (const auto& [word, code] : cases) EXPECT_EQ(languageCodeOf(word), code) << word;
  EXPECT_EQ(languageCodeOf(std::string(100'000, 'a')), "");
}

}  // namespace
}  // namespace zk::tools
