#include <ZKStrings/tools/Coverage.h>
#include <ZKStrings/tools/Nearest.h>
#include <ZKStrings/tools/Table.h>
#include <ZKStrings/tools/Template.h>
#include <ZKStrings/tools/TranslationCommandLine.h>
#include <ZKStrings/tools/check/Checker.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <unistd.h>

namespace zk::tools {

namespace {

constexpr const char* kText = "text";
constexpr const char* kJson = "json";

void addFormat(CLI::App& command, std::string& format) {
  command.add_option("--format", format, "How to print: text or json")
      ->check(CLI::IsMember({kText, kJson}))
      ->default_val(kText);
}

void printRules() {
  for (const auto& [name, severity, summary] : checkRules()) {
    fmt::print("{:<22} {:<8} {}\n", name, nameOf(severity), summary);
  }
}

/// Refuses what is no rule's name, with the nearest that is.
CLI::Validator isRule() {
  const auto refusal = [](const std::string& name) -> std::string {
    const std::vector<Rule> rules = checkRules();
    const auto isMeant = [&](const Rule& rule) { return rule.name == name; };
    if (std::any_of(rules.begin(), rules.end(), isMeant)) return "";
    std::vector<std::string_view> names;
    for (const Rule& rule : rules) names.push_back(rule.name);
    const std::optional<std::string_view> meant = nearest(name, names);
    return fmt::format(
        "\"{}\" is no rule; {}", name,
        meant ? fmt::format("write \"{}\" if that is meant", *meant) : "zkstrings check --rules lists them");
  };
  return {refusal, ""};
}

void print(const Faults& faults, const std::string& format) {
  if (format == kJson) {
    fmt::print("{}\n", toJson(faults));
    return;
  }
  const bool isTerminal = isatty(STDOUT_FILENO) == 1;
  for (const Fault& fault : faults) fmt::print("{}\n", formatted(fault, isTerminal));
}

}  // namespace

void addCheckCommand(CLI::App& app, const RootFinder& inRoot, int& status) {
  struct Arguments {
    CheckOptions options;
    std::string format;
    bool isStrict = false;
    bool showsRules = false;
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command =
      app.add_subcommand("check", "Say all that is wrong with the tables and the country list");
  command->add_option("languages", arguments->options.languages,
                      "The languages to check, as their directories are named; without any, everything");
  command->add_option("--off", arguments->options.off, "A rule to switch off; may be given again")
      ->allow_extra_args(false)
      ->check(isRule())
      ->type_name("RULE");
  command->add_flag("--strict", arguments->isStrict, "Fail on warnings as well");
  command->add_flag("--notes", arguments->options.notes, "Show also what may be right, but is worth a look");
  command->add_flag("--rules", arguments->showsRules, "List the rules instead");
  addFormat(*command, arguments->format);
  command->callback([arguments, inRoot, &status] {
    if (arguments->showsRules) return printRules();
    const Faults faults = check(inRoot(), arguments->options);
    print(faults, arguments->format);
    const Severity mildest = arguments->isStrict ? Severity::warning : Severity::error;
    const auto fails = [&](const Fault& fault) { return fault.severity <= mildest; };
    status = std::any_of(faults.begin(), faults.end(), fails) ? 1 : 0;
  });
}

void addCoverageCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto format = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("coverage", "Show how many texts each language has");
  addFormat(*command, *format);
  command->callback([format, inRoot] {
    const std::vector<Coverage> languages = coverageOf(inRoot());
    fmt::print("{}", *format == kJson ? toJson(languages) + "\n" : formatted(languages));
  });
}

void addTemplateCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto language = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("template", "Write the table from which a new language begins");
  command->add_option("language", *language, "The language's ISO 639-1 code")->required();
  command->callback([language, inRoot] {
    const std::size_t texts = writeTemplate(inRoot(), *language);
    fmt::print("Wrote {} with {} texts to translate.\n", tablePath(*language), texts);
  });
}

}  // namespace zk::tools
