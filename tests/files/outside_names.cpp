// Uses the module step by step, with hostile names that try to leave its resources. traced_files.sh checks which
// files each step opens. A step begins when the program opens the file "step:" with the step's name.

#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/tests/RandomTexts.h>

#include <cstddef>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

namespace {

using namespace std::string_literals;

void beginStep(const std::string& name) {
  static_cast<void>(access(("step:" + name).c_str(), F_OK));
}

std::vector<std::string> identifiers() {
  constexpr int kCount = 5000;
  constexpr std::size_t kMegabyte = 1 << 20;
  const std::vector<std::string> parts = {"..",
                                          "/",
                                          "../",
                                          "/etc/passwd",
                                          "\0"s,
                                          ".",
                                          "~",
                                          "%2e%2e%2f",
                                          "\\",
                                          "de",
                                          "Base",
                                          ".lproj",
                                          "\xFF",
                                          "\xC0\xAF",
                                          "e\u0301",
                                          "/\u0338",
                                          "👨‍👩‍👧",
                                          "countries.json"};
  zk::testing::RandomTexts texts(parts);
  std::vector<std::string> all;
  for (int i = 0; i < kCount; ++i) all.push_back(texts.next(5));
  for (const std::string& repeated : parts) {
    std::string& identifier = all.emplace_back("d");
    while (identifier.size() < kMegabyte) identifier += repeated;
    all.push_back(identifier.substr(1));
  }
  return all;
}

/// Returns how many of the identifiers result in a right text: that of one of the module's languages, or the English
/// one.
std::size_t rightTexts(const std::vector<std::string>& all) {
  std::size_t right = 0;
  for (const std::string& identifier : all) {
    zk::Current::language->preferredLanguages = {identifier};
    const std::string text = zk::ZKStrings::Are_you_sure_you_want_to_kick_username(identifier);
    const bool isWhole = text.find(identifier) != std::string::npos && text.size() < identifier.size() + 100;
    if (isWhole) ++right;
    const zk::Bundle& bundle = zk::bundle();
    const bool isFound = bundle.pathForResource(identifier, "lproj") != nullptr;
    if (isFound && identifier != "de" && identifier != "Base") --right;
    if (bundle.localizedStringForKey("a", "b", identifier) != "b") --right;
    if (bundle.URLForResource(identifier, identifier)) --right;
  }
  return right;
}

}  // namespace

int main() {
  beginStep("main");
  static_cast<void>(zk::mainBundle());
  beginStep("race");
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) threads.emplace_back([] { static_cast<void>(zk::bundle()); });
  for (std::thread& thread : threads) thread.join();
  beginStep("names");
  zk::Current::language = zk::Language{};
  const std::vector<std::string> all = identifiers();
  const std::size_t right = rightTexts(all);
  std::cout << right << " of " << all.size() << " texts are right\n";
  return right == all.size() ? 0 : 1;
}
