#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/support/Fault.h>
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

TEST(Languages, AreFoundByWhatTheUserCallsThem) {
  const zk::testing::TemporaryProject project;
  project.write(project.table("de"), "");
  const std::pair<const char*, const char*> cases[] = {{"de", "de"},
                                                       {"de-AT", "de"},
                                                       {"german", "de"},
                                                       {"Base", "Base"},
                                                       {"english", "Base"},
                                                       {"en", "Base"},
                                                       {"resources/de.lproj/Localizable.strings", "de"}};
  for (const auto& [word, language] : cases)
    EXPECT_EQ(existingLanguage(project.root(), word), language) << word;

  const std::pair<const char*, const char*> refused[] = {{"swe", "zkstrings template sv begins one"},
                                                         {"germann", "write \"german\""},
                                                         {"xyzzy", "zkstrings coverage"}};
  for (const auto& [word, advice] : refused) {
    try {
      ADD_FAILURE() << word << " is taken for " << existingLanguage(project.root(), word);
    } catch (const CommandFailed& failed) {
      EXPECT_NE(failed.faults.front().message.find(advice), std::string::npos)
          << failed.faults.front().message;
    }
  }
}

}  // namespace
}  // namespace zk::tools
