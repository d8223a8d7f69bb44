#include <ZKStrings/ZKStrings.h>

#include <iostream>

#include <unistd.h>

// With an argument, first changes the working directory to it.
int main(int argc, char** argv) {
  if (argc > 1 && chdir(argv[1]) != 0) return 1;
  zk::Current::language = zk::Language{};
  zk::Current::language->preferredLanguages = {"de-DE"};
  const zk::Language language = zk::Current::language;
  std::cout << zk::ZKStrings::About() << ", " << language.countries.size() << " countries\n";
}
