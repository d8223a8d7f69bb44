// A tour of the module, used as an app uses it: all four kinds of texts in several languages, a change of the language
// while the program runs, and the list of countries.
//
//     tour                 the preferred languages of this machine, then some others
//     tour pt-BR fr-FR     each of the given languages, then all of them as the player's preferred languages

#include <ZKStrings/ZKStrings.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Columns.h"

namespace {

using zk::ZKStrings;
using zk::Current::language;

std::string joined(const zk::SharedArray<std::string>& identifiers) {
  std::string list;
  for (const std::string& identifier : identifiers) list += (list.empty() ? "" : ", ") + identifier;
  return list.empty() ? "none" : list;
}

/// Whether the module has texts in the language.
bool hasTexts(std::string_view identifier) {
  const std::vector<zk::TextLanguage> languages = zk::availableLanguages();
  return std::any_of(languages.begin(), languages.end(),
                     [&](const zk::TextLanguage& one) { return one.code == identifier.substr(0, 2); });
}

/// Explains why LANGUAGE has no effect if no locale is set, as in many containers.
void explainIgnoredLanguage() {
  const char* const list = std::getenv("LANGUAGE");
  const zk::SharedArray<std::string> languages = zk::Locale::preferredLanguages();
  if (list == nullptr || *list == '\0' || joined(languages) != "en" || std::string_view(list) == "en") return;
  std::cout << "\nLANGUAGE=" << list
            << " has no effect without a locale: set LANG too, for example LANG=en_US.UTF-8\n";
}

void showTexts() {
  const zk::Language now = language.get();
  showHeading("Preferred languages: " + joined(now.preferredLanguages));
  for (const std::string& identifier : now.preferredLanguages) {
    if (!hasTexts(identifier)) std::cout << "  (" << identifier << " has no table)\n";
  }
  show("About()", ZKStrings::About());
  show("Live_trivia_n_game_show()", ZKStrings::Live_trivia_n_game_show());
  show("active_limit_players(\"12\", \"50\")", ZKStrings::active_limit_players("12", "50"));
  show("Round_roundNumber(\"2\")", ZKStrings::Round_roundNumber("2"));
  std::string coins;
  std::string badges;
  for (const std::int64_t count : {0, 1, 2, 6}) {
    const std::string separator = count == 0 ? "" : " · ";
    coins += separator + ZKStrings::Coins(count);
    badges += separator + ZKStrings::badgeCount_Badges(std::to_string(count), count);
  }
  show("Coins(n), n = 0, 1, 2, 6", coins);
  show("badgeCount_Badges(\"n\", n)", badges);
}

void showTexts(const std::vector<std::string>& preferredLanguages) {
  language->preferredLanguages = preferredLanguages;
  showTexts();
}

void showFallback() {
  showHeading("A key that is in no table: the English default");
  show("localizedString(...)",
       zk::localizedString("Confetti_for_name", "Confetti for %{name}!", std::nullopt, {{"name", "kim"}}));
}

void showLiveSwitch() {
  showHeading("After a change of the language, the next text follows");
  for (const char* identifier : {"en-US", "de-DE", "en-US"}) {
    language->preferredLanguages = {identifier};
    show(identifier, ZKStrings::You_re_back_in_the_game_No_one_was_correct());
  }
}

void showCountries() {
  showHeading("The countries with the calling code +44, of " + std::to_string(language->countries.size()));
  for (const zk::Country& country : language.get().countries) {
    if (country.phoneCode() == 44) std::cout << "  " << country.displayName() << "\n";
  }
}

/// Shows the machine's languages, then some others. Greek has no table, so its texts are in English.
void showEverything() {
  explainIgnoredLanguage();
  showTexts();
  for (const char* identifier : {"en-US", "de-DE", "ja-JP", "el-GR"}) showTexts({identifier});
  showFallback();
  showLiveSwitch();
  showCountries();
}

}  // namespace

int main(int argc, char** argv) {
  language = zk::Language{};
  const std::vector<std::string> given(argv + 1, argv + argc);
  if (given.empty()) {
    showEverything();
    return 0;
  }
  for (const std::string& identifier : given) showTexts({identifier});
  if (given.size() > 1) showTexts(given);
}
