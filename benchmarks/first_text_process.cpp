// The work of an app before its first text: it reads the settings with the country list, and opens one table.
#include <ZKStrings/ZKStrings.h>

int main() {
  zk::Current::language = zk::Language{};
  zk::Current::language->preferredLanguages = {"de-DE"};
  return zk::ZKStrings::About().empty() ? 1 : 0;
}
