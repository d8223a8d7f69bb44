#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/System.h>
#include <ZKStrings/tools/support/Terminal.h>
#include <ZKStrings/tools/translation/Coverage.h>
#include <ZKStrings/tools/translation/TableUpdate.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

constexpr const char* kText = "text";
constexpr const char* kJson = "json";

void addFormat(CLI::App& command, std::string& format) {
  command.add_option("--format", format, "The output format: text or json")
      ->check(CLI::IsMember({kText, kJson}))
      ->default_val(kText);
}

void printRules() {
  for (const auto& [name, severity, summary] : checkRules()) {
    constexpr std::size_t kIndent = 32;
    say("{:<22} {:<8} {}\n", name, nameOf(severity), wrapped(summary, kTerminalWidth - kIndent, kIndent));
  }
}

/// Appends "2 warnings", or nothing if `count` is 0.
void addCount(std::vector<std::string>& counts, std::size_t count, std::string_view singular,
              std::string_view plural) {
  if (count > 0) counts.push_back(fmt::format("{} {}", count, count == 1 ? singular : plural));
}

/// "13 tables, 246 countries: 1 error, 2 gaps".
std::string summaryOf(const CheckResult& result) {
  const auto count = [&](Severity severity) {
    return static_cast<std::size_t>(
        std::count_if(result.diagnostics.begin(), result.diagnostics.end(),
                      [&](const Diagnostic& diagnostic) { return diagnostic.severity == severity; }));
  };
  std::vector<std::string> checked;
  addCount(checked, result.tables, "table", "tables");
  addCount(checked, result.countries, "country", "countries");
  std::vector<std::string> found;
  addCount(found, count(Severity::error), "error", "errors");
  addCount(found, count(Severity::warning), "warning", "warnings");
  if (found.empty()) found.emplace_back("nothing to fix");
  addCount(found, count(Severity::gap), "gap", "gaps");
  addCount(found, count(Severity::note), "note", "notes");
  return fmt::format("{}: {}", fmt::join(checked, ", "), fmt::join(found, ", "));
}

void printResult(const CheckResult& result, const std::string& format) {
  if (format == kJson) {
    fmt::print("{}\n", toJson(result.diagnostics));
    return;
  }
  print(stdout, result.diagnostics);
  if (isTerminal(stdout)) say("{}\n", summaryOf(result));
}

/// "added 3 texts to translate, removed 1 entry".
std::string summaryOf(const TableUpdate& update) {
  std::vector<std::string> done;
  const auto add = [&](std::string_view verb, std::size_t count, std::string_view singular,
                       std::string_view plural) {
    addCount(done, count, singular, plural);
    if (count > 0) done.back().insert(0, std::string(verb) + " ");
  };
  add("added", update.added, "text to translate", "texts to translate");
  add("marked", update.marked, "text as untranslated", "texts as untranslated");
  add("unmarked", update.unmarked, "translated text", "translated texts");
  add("marked", update.reviews, "translation for review", "translations for review");
  add("removed", update.removed, "entry with an unknown key", "entries with unknown keys");
  return done.empty() ? "refreshed comments" : fmt::format("{}", fmt::join(done, ", "));
}

void addCheckCommand(CLI::App& app, const RootFinder& inRoot) {
  static CheckOptions options;
  static std::string format;
  static bool isStrict = false;
  static bool isForRelease = false;
  static bool showsRules = false;
  CLI::App& command = addCommand(app, "check", "Check the tables and the country list", "check de --strict");
  command
      .add_option("languages", options.languages,
                  "The languages to check: codes, names or tables (default: everything)")
      ->type_name("LANGUAGE");
  command.add_option("--off", options.off, "A rule to turn off; can be repeated")
      ->allow_extra_args(false)
      ->check(CLI::Validator(errorInRuleName, ""))
      ->type_name("RULE");
  command.add_flag("--strict", isStrict, "Fail on warnings too");
  command.add_flag("--complete", isForRelease, "Fail on gaps too: missing, untranslated or outdated texts");
  command.add_flag("--notes", options.notes,
                   "Also print notes on texts that may be right but deserve a look");
  command.add_flag("--rules", showsRules, "List the rules and exit");
  addFormat(command, format);
  command.callback([inRoot] {
    if (showsRules) return printRules();
    const std::string root = inRoot();
    for (std::string& language : options.languages) language = existingLanguage(root, language);
    CheckResult result = check(root, options);
    result.diagnostics = fromWorkingDirectory(std::move(result.diagnostics), root);
    printResult(result, format);
    const auto fails = [](const Diagnostic& diagnostic) {
      return diagnostic.severity == Severity::error ||
             (diagnostic.severity == Severity::warning && isStrict) ||
             (diagnostic.severity == Severity::gap && isForRelease);
    };
    if (std::any_of(result.diagnostics.begin(), result.diagnostics.end(), fails)) throw CommandFailed{};
  });
}

void addCoverageCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string format;
  static std::size_t least = 0;
  CLI::App& command =
      addCommand(app, "coverage", "Show translation progress per language", "coverage --at-least 95");
  command.add_option("--at-least", least, "Fail if less than N percent of a language's texts are translated")
      ->check(CLI::Range(0, 100).description(""))
      ->type_name("N");
  addFormat(command, format);
  command.callback([inRoot] {
    const std::vector<Coverage> languages = coverageOf(inRoot());
    if (format == kJson) {
      fmt::print("{}\n", toJson(languages));
    } else {
      print(stdout, formatted(languages));
    }
    const auto isBelow = [](const Coverage& coverage) { return coverage.percent() < least; };
    if (std::any_of(languages.begin(), languages.end(), isBelow)) throw CommandFailed{};
  });
}

void addTemplateCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string language;
  CLI::App& command = addCommand(app, "template", "Create the table for a new language", "template fi");
  command.add_option("language", language, "The language: its code or name")
      ->required()
      ->type_name("NEW_LANGUAGE");
  command.callback([inRoot] {
    // "swe" and "Swedish" mean "sv"; a region, as in "pt-BR", is refused.
    if (const std::string code = languageCodeOf(language);
        !code.empty() && language.find_first_of("-_./@") == std::string::npos)
      language = code;
    const std::string root = inRoot();
    const std::size_t texts = writeTemplate(root, language);
    say("Wrote {} with {} texts to translate.\n", fromWorkingDirectory(tablePath(language), root), texts);
  });
}

void addUpdateCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string word;
  static bool prunes = false;
  CLI::App& command = addCommand(
      app, "update", "Add missing texts to a language's table and mark untranslated ones", "update de");
  command.add_option("language", word, "The language: its code, name or table")
      ->required()
      ->type_name("LANGUAGE");
  command.add_flag("--prune", prunes, "Remove entries that the app never looks up");
  command.callback([inRoot] {
    const std::string root = inRoot();
    const std::string language = existingLanguage(root, word);
    const TableUpdate update = updateTable(root, language, prunes);
    print(stdout, fromWorkingDirectory(update.unknownKeys, root));
    say("{}: {}\n", fromWorkingDirectory(tablePath(language), root),
        update.isChange ? summaryOf(update) : "already up to date");
  });
}

}  // namespace

void addTranslationCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot) {
  addCheckCommand(app, inRoot);
  addCoverageCommand(app, inRoot);
  addTemplateCommand(app, aloneInRoot);
  addUpdateCommand(app, aloneInRoot);
}

}  // namespace zk::tools
