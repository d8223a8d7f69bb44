#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/tests/Rows.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace zk {
namespace {

/// Sets what `variables` names, such as "LANG=de_DE LANGUAGE=de:fr", and nothing else.
void setEnvironment(const std::string& variables) {
  for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
  std::istringstream all(variables);
  for (std::string name, value; std::getline(all, name, '=') && getline(all, value, ' ');)
    setenv(name.c_str(), value.c_str(), 1);
}

std::string joined(const SharedArray<std::string>& languages) {
  std::string all;
  for (const std::string& language : languages) all += (all.empty() ? "" : " ") + language;
  return all;
}

TEST(Locale, ReadsTheEnvironment) {
  for (const auto& [environment, identifier, languages] :
       testing::rowsOf<std::string, std::string, std::string>("platform/LocaleTest.json")) {
    setEnvironment(environment);
    EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), identifier) << environment;
    EXPECT_EQ(joined(Locale::preferredLanguages()), languages) << environment;
  }
}

TEST(Locale, AHostMaySupplyTheSettings) {
  setEnvironment("LANG=de_DE");
  Locale::readSettingsFrom([] { return LocaleSettings{"fr-CA", {"fr-CA", "en-CA"}}; });
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "fr-CA");
  EXPECT_EQ(joined(Locale::preferredLanguages()), "fr-CA en-CA");
  Locale::readSettingsFrom([] {
    Locale::readSettingsFrom({});
    return LocaleSettings{"ja-JP", {}};
  });
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "ja-JP");
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "de-DE");
}

}  // namespace
}  // namespace zk
