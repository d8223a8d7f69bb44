// The console of a show's host. Its texts come from its own catalogue. The word for the players' badges comes from the
// module's catalogue. Both are in the same language.
//   own_catalogue            in the languages of the user's settings
//   own_catalogue de-DE      in the given language
#include <ZKStrings/ZKStrings.h>

#include <cstdint>
#include <iostream>
#include <string>

#include <ConsoleTexts.h>

using console::ConsoleTexts;

int main(int argc, char** argv) {
  zk::Current::language = zk::Language{};
  if (argc > 1) zk::Current::language->preferredLanguages = {argv[1]};

  std::cout << ConsoleTexts::Good_evening_host("Kim") << "\n";
  for (const std::int64_t minutes : {5, 1, 0}) {
    std::cout << ConsoleTexts::minutes_minutes_to_the_show(std::to_string(minutes), minutes) << "\n";
  }
  std::cout << ConsoleTexts::players_players_are_waiting("250", 250) << ", "
            << zk::ZKStrings::badgeCount_Badges("12", 12) << "\n"
            << ConsoleTexts::Camera_number_is_on("2") << "\n"
            << "[" << ConsoleTexts::Go_live() << "]  [" << ConsoleTexts::End_the_show() << "]\n";
}
