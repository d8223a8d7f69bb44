// What an app pays before its first text: the settings with the country list, and the opening of one table.
#include <ZKStrings/ZKStrings.h>

int main() {
  zk::Current::language = zk::Language{};
  zk::Current::language->preferredLanguages = {"de-DE"};
  return zk::ZKStrings::About().empty() ? 1 : 0;
}
