#include <ZKStrings/platform/Locale.h>

#include <cstdlib>
#include <map>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

void setEnvironment(const std::map<std::string, std::string>& variables) {
  for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
  for (const auto& [name, value] : variables) setenv(name.c_str(), value.c_str(), 1);
}

TEST(Locale, ReadsTheEnvironment) {
  struct Case {
    std::map<std::string, std::string> environment;
    std::string identifier;
    std::vector<std::string> languages;
  };
  const Case cases[] = {
      {{}, "en", {"en"}},
      {{{"LANG", "C"}}, "en", {"en"}},
      {{{"LANG", "POSIX"}, {"LANGUAGE", "de"}}, "en", {"en"}},
      {{{"LANG", "C.UTF-8"}, {"LANGUAGE", "de:fr"}}, "en", {"en"}},
      {{{"LANG", "pt_BR.UTF-8"}}, "pt-BR", {"pt-BR"}},
      {{{"LANG", "sr_RS@latin"}}, "sr-Latn-RS", {"sr-Latn-RS"}},
      {{{"LANG", "sr@latin"}}, "sr-Latn", {"sr-Latn"}},
      {{{"LANG", "de_DE@euro"}}, "de-DE", {"de-DE"}},
      {{{"LANG", "de_DE.ISO-8859-15@euro"}}, "de-DE", {"de-DE"}},
      {{{"LANG", "en_US"}, {"LC_MESSAGES", "fr_FR"}, {"LC_ALL", "it_IT"}}, "it-IT", {"it-IT"}},
      {{{"LANG", "en_US"}, {"LC_MESSAGES", "fr_FR"}, {"LC_ALL", ""}}, "fr-FR", {"fr-FR"}},
      {{{"LANG", "de_DE"}, {"LC_ALL", "C"}}, "en", {"en"}},
      {{{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "de_AT:de_DE::fr:de_AT"}}, "de-DE", {"de-AT", "de-DE", "fr"}},
      {{{"LANG", "es_ES.UTF-8"}, {"LANGUAGE", "ca:C"}}, "es-ES", {"ca", "en", "es-ES"}},
      {{{"LANG", "es"}, {"LANGUAGE", ":"}}, "es", {"es"}},
      {{{"LANG", "_DE.UTF-8"}, {"LANGUAGE", "fr"}}, "en", {"en"}},
      {{{"LANG", "-DE"}}, "en", {"en"}},
      {{{"LANG", "sr_@latin"}, {"LANGUAGE", "_:de_:-"}}, "sr-Latn", {"de", "sr-Latn"}},
      {{{"LANG", "es_ES"}, {"LANGUAGE", "_DE:.UTF-8:@latin:it"}}, "es-ES", {"it", "es-ES"}},
  };
  for (const Case& item : cases) {
    setEnvironment(item.environment);
    std::string shown;
    for (const auto& [name, value] : item.environment) shown += name + "=" + value + " ";
    const SharedArray<std::string> languages = Locale::preferredLanguages();
    EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), item.identifier) << shown;
    EXPECT_EQ(std::vector<std::string>(languages.begin(), languages.end()), item.languages) << shown;
  }
}

TEST(Locale, AnswersLiveWhileTheListIsASnapshot) {
  setEnvironment({{"LANG", "de_DE"}});
  const Locale locale = Locale::autoupdatingCurrent();
  const SharedArray<std::string> languages = Locale::preferredLanguages();
  setEnvironment({{"LANG", "fr_FR"}});
  EXPECT_EQ(locale.identifier(), "fr-FR");
  EXPECT_EQ(languages[0], "de-DE");
}

TEST(Locale, AHostMaySupplyTheSettings) {
  setEnvironment({{"LANG", "de_DE"}});
  Locale::readSettingsFrom([] { return LocaleSettings{"fr-CA", {"fr-CA", "en-CA"}}; });
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "fr-CA");
  EXPECT_EQ(Locale::preferredLanguages()[1], "en-CA");
  Locale::readSettingsFrom([] {
    Locale::readSettingsFrom({});
    return LocaleSettings{"ja-JP", {}};
  });
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "ja-JP");
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "de-DE");
}

}  // namespace
}  // namespace zk
