// The same key in two catalogues, and a text of the module's catalogue. Each comes from its own tables, in German.
#include <ZKStrings/ZKStrings.h>

#include <iostream>

#include <ConsoleTexts.h>
#include <Labels.h>

int main() {
  zk::Current::language = zk::Language{};
  zk::Current::language->preferredLanguages = {"de-DE"};
  std::cout << console::ConsoleTexts::Go_live() << ", " << Labels::Go_live() << ", "
            << zk::ZKStrings::badgeCount_Badges("12", 12) << "\n";
}
