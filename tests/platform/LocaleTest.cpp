#include <ZKStrings/platform/Locale.h>

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
  struct Case {
    std::string environment, identifier, languages;
  };
  const Case cases[] = {
      {"", "en", "en"},
      {"LANG=C", "en", "en"},
      {"LANG=POSIX LANGUAGE=de", "en", "en"},
      {"LANG=C.UTF-8 LANGUAGE=de:fr", "en", "en"},
      {"LANG=pt_BR.UTF-8", "pt-BR", "pt-BR"},
      {"LANG=sr_RS@latin", "sr-Latn-RS", "sr-Latn-RS"},
      {"LANG=sr@latin", "sr-Latn", "sr-Latn"},
      {"LANG=de_DE@euro", "de-DE", "de-DE"},
      {"LANG=de_DE.ISO-8859-15@euro", "de-DE", "de-DE"},
      {"LANG=en_US LC_MESSAGES=fr_FR LC_ALL=it_IT", "it-IT", "it-IT"},
      {"LANG=en_US LC_MESSAGES=fr_FR LC_ALL=", "fr-FR", "fr-FR"},
      {"LANG=de_DE LC_ALL=C", "en", "en"},
      {"LANG=de_DE.UTF-8 LANGUAGE=de_AT:de_DE::fr:de_AT", "de-DE", "de-AT de-DE fr"},
      {"LANG=es_ES.UTF-8 LANGUAGE=ca:C", "es-ES", "ca en es-ES"},
      {"LANG=es LANGUAGE=:", "es", "es"},
      {"LANG=_DE.UTF-8 LANGUAGE=fr", "en", "en"},
      {"LANG=-DE", "en", "en"},
      {"LANG=sr_@latin LANGUAGE=_:de_:-", "sr-Latn", "de sr-Latn"},
      {"LANG=es_ES LANGUAGE=_DE:.UTF-8:@latin:it", "es-ES", "it es-ES"},
  };
  for (const Case& item : cases) {
    setEnvironment(item.environment);
    EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), item.identifier) << item.environment;
    EXPECT_EQ(joined(Locale::preferredLanguages()), item.languages) << item.environment;
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
