#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/reference/Reference.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

/// A word and its explanation.
using Candidate = std::pair<std::string, std::string>;

bool isNamed(const CLI::Option* option) {
  return option->nonpositional();
}

/// The options of `command`, and those of `app` that can follow it.
std::vector<const CLI::Option*> optionsOf(const CLI::App& app, const CLI::App& command) {
  std::vector<const CLI::Option*> options = command.get_options(isNamed);
  if (&command == &app) return options;
  for (const CLI::Option* const option : app.get_options(isNamed)) {
    if (option != app.get_help_ptr() && option != app.get_version_ptr()) options.push_back(option);
  }
  return options;
}

std::vector<std::string> keysIn(const std::string& root) {
  std::vector<std::string> keys;
  const Catalogue catalogue = Catalogue::read(root);
  for (const Entry& entry : catalogue.entries()) keys.push_back(entry.key);
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  return keys;
}

/// The words that an option or argument with the type name `type` takes. There are none outside a project.
std::vector<std::string> wordsOf(std::string_view type, const std::vector<std::string>& line) {
  std::vector<std::string> words;
  if (type == "RULE") {
    for (const Rule& rule : checkRules()) words.emplace_back(rule.name);
  }
  if (type == "DIR" || type == "FILE") return {":files"};
  if (const std::size_t begin = type.find('{'); begin != type.npos) {  // {text,json}
    std::istringstream values(std::string(type.substr(begin + 1, type.find('}') - begin - 1)));
    for (std::string value; std::getline(values, value, ',');) words.push_back(value);
  }
  try {
    const auto root = std::find(line.begin(), line.end(), "--root");
    const std::string project = line.end() - root > 2 ? rootAt(root[1]) : findRoot();
    if (type == "LANGUAGE") return languagesIn(project);
    if (type == "KEY") return keysIn(project);
  } catch (const CommandFailed&) {
  }
  return words;
}

/// Returns the argument of `command` with the number `at`, from 0; null if there is none.
const CLI::Option* argumentAt(const CLI::App& command, std::size_t at) {
  const auto all = command.get_options([](const CLI::Option* option) { return option->get_positional(); });
  const bool isRepeated = !all.empty() && all.back()->get_items_expected_max() > 1;
  if (at < all.size()) return all[at];
  return isRepeated ? all.back() : nullptr;
}

/// All words that can follow `line`, whose last word begins as `begun`.
std::vector<Candidate> candidatesAfter(const CLI::App& app, const std::vector<std::string>& line,
                                       std::string_view begun) {
  const CLI::App* command = &app;
  const CLI::Option* value = nullptr;  // the option whose value comes next
  std::size_t arguments = 0;
  for (auto word = line.begin(); word != line.end() - 1; ++word) {
    if (*word == "=") continue;
    if (std::exchange(value, nullptr)) continue;
    if (word->starts_with('-')) {
      for (const CLI::Option* const option : optionsOf(app, *command))
        if (option->check_name(*word) && option->get_items_expected_max() > 0) value = option;
      continue;
    }
    const auto named = [&](const CLI::App* one) { return command == &app && one->get_name() == *word; };
    const auto found = app.get_subcommands(named);
    if (found.empty()) ++arguments;
    if (!found.empty()) command = found.front();
  }

  std::vector<Candidate> candidates;
  if (!value && begun.starts_with('-')) {
    for (const CLI::Option* const option : optionsOf(app, *command)) {
      for (const std::string& name : option->get_lnames())
        candidates.emplace_back("--" + name, option->get_description());
    }
  } else if (!value && command == &app && arguments == 0) {
    for (const CLI::App* const subcommand : app.get_subcommands({}))
      candidates.emplace_back(subcommand->get_name(), subcommand->get_description());
  } else if (const CLI::Option* const next = value ? value : argumentAt(*command, arguments)) {
    for (const std::string& word : wordsOf(next->get_type_name(), line)) candidates.emplace_back(word, "");
  }
  return candidates;
}

}  // namespace

std::string completionOf(const CLI::App& app, const std::vector<std::string>& words) {
  if (words.empty()) return "";
  const std::string begun = words.back() == "=" ? "" : words.back();
  std::string lines;
  for (const auto& [word, explanation] : candidatesAfter(app, words, begun)) {
    if (word == ":files" || word.starts_with(begun))
      lines += fmt::format("{}{}{}\n", withoutControls(word), explanation.empty() ? "" : "\t", explanation);
  }
  return lines;
}

}  // namespace zk::tools
