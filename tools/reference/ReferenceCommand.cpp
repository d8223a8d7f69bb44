#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/reference/Completion.h>
#include <ZKStrings/tools/reference/ManPage.h>
#include <ZKStrings/tools/reference/ReferenceCommand.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <string_view>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr int kWrongUse = 2;

/// The project's root as the command line `words` gives it.
std::string rootFor(const std::vector<std::string>& words) {
  const auto option = std::find(words.begin(), words.end(), "--root");
  return words.end() - option > 2 ? rootAt(option[1]) : findRoot();
}

std::vector<std::string> rules() {
  std::vector<std::string> names;
  for (const Rule& rule : checkRules()) names.emplace_back(rule.name);
  return names;
}

std::vector<std::string> keys(const std::string& root) {
  std::vector<std::string> keys;
  const Catalogue catalogue = Catalogue::read(root);
  for (const Entry& entry : catalogue.entries()) keys.push_back(entry.key);
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  return keys;
}

/// Where there is no project, or a broken one, it has no words: who completes a line is told nothing.
std::vector<std::string> wordsOfType(std::string_view type, const std::vector<std::string>& words) {
  try {
    if (type == "RULE") return rules();
    if (type == "LANGUAGE") return languagesIn(rootFor(words));
    if (type == "KEY") return keys(rootFor(words));
  } catch (const CommandFailed&) {
  }
  return {};
}

}  // namespace

int printReference(const CLI::App& app, const std::vector<std::string>& words) {
  if (words == std::vector<std::string>{"man"}) {
    fmt::print("{}", manPageOf(app));
    return 0;
  }
  if (words.empty() || words.front() != "complete") return kWrongUse;
  const std::vector<std::string> line(words.begin() + 1, words.end());
  const auto ofType = [&](std::string_view type) { return wordsOfType(type, line); };
  for (const auto& [word, explanation] : candidatesFor(app, line, ofType))
    fmt::print("{}{}{}\n", word, explanation.empty() ? "" : "\t", explanation);
  return 0;
}

}  // namespace zk::tools
