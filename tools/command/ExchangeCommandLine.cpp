#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/exchange/Export.h>
#include <ZKStrings/tools/exchange/Import.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

constexpr const char* kXLIFF = "xliff";
constexpr const char* kPO = "po";
constexpr const char* kCSV = "csv";
constexpr const char* kXLIFF12 = "1.2";
constexpr const char* kXLIFF20 = "2.0";

struct ExportArguments {
  std::string language;
  std::string file;
  std::string format;
  std::string xliff;
  bool onlyLacking = false;

  [[nodiscard]] ExchangeFormat chosenFormat() const {
    if (format == kPO) return ExchangeFormat::po;
    if (format == kCSV) return ExchangeFormat::csv;
    if (xliff == kXLIFF20) return ExchangeFormat::xliff20;
    const bool isNamed = !format.empty() || !xliff.empty();
    return isNamed ? ExchangeFormat::xliff12 : formatNamedBy(file);
  }
};

void runExport(const std::string& root, const ExportArguments& arguments) {
  if (!arguments.xliff.empty() && !arguments.format.empty() && arguments.format != kXLIFF)
    throw CLI::ValidationError("--xliff", fmt::format("not with --format {}", arguments.format));
  const std::string language = existingLanguage(root, arguments.language);
  const Translations translations = translationsOf(root, language, arguments.onlyLacking);
  const std::string bytes = written(translations, arguments.chosenFormat());
  if (arguments.file.empty()) {
    fmt::print("{}", bytes);
    return;
  }
  writeFile("", arguments.file, bytes);
  const std::size_t count = translations.units.size();
  say("Wrote {} with {} text{}.\n", arguments.file, count, count == 1 ? "" : "s");
}

/// "2 texts added, 1 changed, 1065 as before; 3 refused".
std::string summaryOf(const Import& done) {
  std::vector<std::string> counts;
  const auto add = [&](std::size_t count, const char* what) {
    if (count > 0) counts.push_back(fmt::format("{} {}", count, what));
  };
  add(done.added, "added");
  add(done.changed, "changed");
  add(done.marked, "marked again");
  add(done.unchanged, "as before");
  add(done.refused, "refused");
  return counts.empty() ? "nothing to import" : fmt::format("{}", fmt::join(counts, ", "));
}

Import runImport(const std::string& root, const std::string& file, const std::string& language, bool force) {
  Translations translations = readTranslations(file);
  if (!language.empty()) translations.language = language;
  if (translations.language.empty())
    fail(file, "the file does not name its language; name it with --language");
  translations.language = existingLanguage(root, translations.language);
  return importTranslations(root, translations, file, force);
}

}  // namespace

void addExportCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto arguments = std::make_shared<ExportArguments>();
  auto* const command = app.add_subcommand("export", "Write a language's texts for a translation program");
  command->add_option("language", arguments->language, "The language: its code, name or table")
      ->required()
      ->type_name("LANGUAGE");
  command->add_option("-o,--output", arguments->file, "The file to write (default: the terminal)")
      ->type_name("FILE");
  command
      ->add_option("--format", arguments->format, "xliff, po or csv (default: from the file name, or xliff)")
      ->check(CLI::IsMember({kXLIFF, kPO, kCSV}))
      ->type_name("FORMAT");
  command
      ->add_option("--xliff", arguments->xliff,
                   "The XLIFF version: 1.2, which all programs read, or 2.0 (default: 1.2)")
      ->check(CLI::IsMember({kXLIFF12, kXLIFF20}))
      ->type_name("VERSION");
  command->add_flag("--missing", arguments->onlyLacking, "Only the texts that are not translated yet");
  command->footer("Example: zkstrings export de --missing -o de.xlf");
  command->callback([arguments, inRoot] { runExport(inRoot(), *arguments); });
}

void addImportCommand(CLI::App& app, const RootFinder& inRoot, int& status) {
  struct Arguments {
    std::string file;
    std::string language;
    bool force = false;
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("import", "Import a translated XLIFF, PO or CSV file");
  command->add_option("file", arguments->file, "The file, as the translation program saved it")->required();
  command->add_option("--language", arguments->language, "The language (default: from the file)")
      ->type_name("LANGUAGE");
  command->add_flag("--force", arguments->force,
                    "Take translations of an English text that has changed, and mark them for review");
  command->footer("Example: zkstrings import de.xlf");
  command->callback([arguments, inRoot, &status] {
    const Import done = runImport(inRoot(), arguments->file, arguments->language, arguments->force);
    print(stdout, done.diagnostics);
    say("{}: {}\n", tablePath(done.language), summaryOf(done));
    status = done.refused > 0 ? 1 : 0;
  });
}

}  // namespace zk::tools
