// A tour of the module, as an app would use it: texts of all four kinds in several languages, a change of
// language while the program runs, and the list of countries.
//
//     tour                 the languages that this machine prefers, then English, German and Greek
//     tour de-DE fr-FR     the given preferred languages, most preferred first, instead of this machine's

#include <ZKStrings/ZKStrings.h>

#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

namespace {

using zk::ZKStrings;
using zk::Current::language;

/// `text` in bold, where the output is a terminal.
std::string bold(std::string_view text) {
  static const bool isTerminal = isatty(STDOUT_FILENO) == 1;
  return isTerminal ? "\x1b[1m" + std::string(text) + "\x1b[0m" : std::string(text);
}

void showHeading(std::string_view title) {
  std::cout << "\n" << bold(title) << "\n";
}

void show(std::string_view accessor, std::string text) {
  constexpr std::size_t kWidth = 46;
  const std::string indent = "\n  " + std::string(kWidth, ' ');
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + indent.size())) {
    text.replace(at, 1, indent);
  }
  const std::size_t gap = accessor.size() < kWidth ? kWidth - accessor.size() : 1;
  std::cout << "  " << accessor << std::string(gap, ' ') << text << "\n";
}

std::string joined(const zk::SharedArray<std::string>& identifiers) {
  std::string list;
  for (const std::string& identifier : identifiers) list += (list.empty() ? "" : ", ") + identifier;
  return list.empty() ? "none" : list;
}

void showTexts() {
  showHeading("Preferred languages: " + joined(language->preferredLanguages));
  show("About()", ZKStrings::About());
  show("Live_trivia_n_game_show()", ZKStrings::Live_trivia_n_game_show());
  show("active_limit_players(\"12\", \"50\")", ZKStrings::active_limit_players("12", "50"));
  show("Are_you_sure_you_want_to_kick_username(\"kim\")",
       ZKStrings::Are_you_sure_you_want_to_kick_username("kim"));
  std::string coins;
  std::string badges;
  for (std::int64_t count = 0; count <= 6; ++count) {
    const std::string separator = count == 0 ? "" : count == 4 ? "\n" : " · ";
    coins += separator + ZKStrings::Coins(count);
    badges += separator + ZKStrings::badgeCount_Badges(std::to_string(count), count);
  }
  show("Coins(n), n from 0 to 6", coins);
  show("badgeCount_Badges(\"n\", n)", badges);
}

void showFallback() {
  showHeading("A key that no table holds gives the English default");
  show("localizedString(\"Confetti_for_name\", ...)",
       zk::localizedString("Confetti_for_name", "Confetti for %{name}!", std::nullopt, {{"name", "kim"}}));
}

void showLiveSwitch() {
  showHeading("A change of the language shows in the very next text");
  for (const char* identifier : {"en-US", "de-DE", "en-US"}) {
    language->preferredLanguages = {identifier};
    show(std::string("Current::language -> ") + identifier,
         ZKStrings::You_re_back_in_the_game_No_one_was_correct());
  }
}

void showCountries() {
  showHeading("The countries that call by +44, of " + std::to_string(language->countries.size()));
  for (const zk::Country& country : language.get().countries) {
    if (country.phoneCode() == 44) std::cout << "  " << country.displayName() << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  language = zk::Language{};
  if (argc > 1) language->preferredLanguages = std::vector<std::string>(argv + 1, argv + argc);
  showTexts();

  // Greek has no table, so that its texts are the English ones.
  for (const char* identifier : {"en-US", "de-DE", "el-GR"}) {
    language->preferredLanguages = {identifier};
    showTexts();
  }
  showFallback();
  showLiveSwitch();
  showCountries();
}
