#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/exchange/Exchange.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

constexpr const char* kPage = "build/texts.html";
constexpr const char* kPseudoResources = "build/pseudo/share/ZKStrings";

/// Adds the option --sources, the folders in which a subcommand searches for the places that use a text.
void addSourcesOption(CLI::App& command, std::vector<std::string>& directories) {
  command
      .add_option("--sources", directories,
                  "Show where the sources in this folder use each text; can be repeated")
      ->allow_extra_args(false)
      ->type_name("DIR");
}

struct ExportArguments {
  std::string language;
  std::string file;
  std::string format;
  std::string xliff;
  bool onlyOpen = false;
  std::vector<std::string> sources;

  [[nodiscard]] ExchangeFormat chosenFormat() const {
    if (format == "po") return ExchangeFormat::po;
    if (format == "csv") return ExchangeFormat::csv;
    if (xliff == "2.0") return ExchangeFormat::xliff20;
    return format.empty() && xliff.empty() ? formatNamedBy(file) : ExchangeFormat::xliff12;
  }
};

void runExport(const std::string& root, const ExportArguments& arguments) {
  if (!arguments.xliff.empty() && !arguments.format.empty() && arguments.format != "xliff")
    throw CLI::ValidationError("--xliff", fmt::format("cannot be used with --format {}", arguments.format));
  const std::string language = existingLanguage(root, arguments.language);
  const Translations translations = translationsOf(root, language, arguments.onlyOpen, arguments.sources);
  const std::string bytes = written(translations, arguments.chosenFormat());
  if (arguments.file.empty()) {
    fmt::print("{}", bytes);
    return;
  }
  writeFile("", absolutePath(arguments.file), bytes);
  const std::size_t count = translations.units.size();
  say("Wrote {} with {} text{}.\n", arguments.file, count, count == 1 ? "" : "s");
}

struct ImportArguments {
  std::string file;
  std::string language;
  bool force = false;
  bool quiet = false;
};

Translations readFor(const std::string& root, const ImportArguments& arguments) {
  Translations translations = readTranslations(arguments.file);
  const std::string named = languageCodeOf(translations.language);
  if (!arguments.language.empty() && !named.empty() && named != languageCodeOf(arguments.language))
    fail(arguments.file,
         fmt::format("the file is a translation into \"{}\", not \"{}\"; import it without --language",
                     translations.language, arguments.language));
  if (!arguments.language.empty()) translations.language = arguments.language;
  if (translations.language.empty())
    fail(arguments.file, "the file does not name its language; set it with --language");
  translations.language =
      existingLanguage(root, translations.language, arguments.language.empty() ? arguments.file : "");
  return translations;
}

void runImport(const std::string& root, const ImportArguments& arguments) {
  const Translations translations = readFor(root, arguments);
  Import done = importTranslations(root, translations, arguments.file, arguments.force);
  if (arguments.quiet)
    std::erase_if(done.diagnostics, [](const Diagnostic& one) { return one.severity == Severity::note; });
  print(stdout, fromWorkingDirectory(done.diagnostics, root));
  std::vector<std::string> counts;
  for (const auto& [count, what] : {std::pair(done.added, "added"),
                                    {done.changed, "changed"},
                                    {done.stateChanged, "changed in state"},
                                    {done.unchanged, "unchanged"},
                                    {done.refused, "refused"}}) {
    if (count > 0) counts.push_back(fmt::format("{} {}", count, what));
  }
  if (counts.empty()) counts.emplace_back("nothing to import");
  say("{}: {}\n", fromWorkingDirectory(tablePath(translations.language), root), fmt::join(counts, ", "));
  if (done.refused > 0) throw CommandFailed{};
}

void addExportCommand(CLI::App& app, const RootFinder& inRoot) {
  static ExportArguments arguments;
  CLI::App& command = addCommand(app, "export", "Write a language's texts for a translation program",
                                 "export de --missing -o de.xlf");
  command.add_option("language", arguments.language, "The language: its code, name or table")
      ->required()
      ->type_name("LANGUAGE");
  command.add_option("-o,--output", arguments.file, "The file to write (default: standard output)")
      ->type_name("FILE");
  command
      .add_option("--format", arguments.format, "xliff, po or csv (default: from the file name, or xliff)")
      ->check(CLI::IsMember({"xliff", "po", "csv"}))
      ->type_name("FORMAT");
  command
      .add_option("--xliff", arguments.xliff,
                  "The XLIFF version: 1.2, which all programs read, or 2.0 (default: 1.2)")
      ->check(CLI::IsMember({"1.2", "2.0"}))
      ->type_name("VERSION");
  command.add_flag("--missing", arguments.onlyOpen,
                   "Export only texts that are not translated or need review");
  addSourcesOption(command, arguments.sources);
  command.callback([inRoot] { runExport(inRoot(), arguments); });
}

void addImportCommand(CLI::App& app, const RootFinder& inRoot) {
  static ImportArguments arguments;
  CLI::App& command = addCommand(app, "import", "Import a translated XLIFF, PO or CSV file", "import de.xlf");
  command.add_option("file", arguments.file, "The file, as the translation program saved it")->required();
  command.add_option("--language", arguments.language, "The language (default: from the file)")
      ->type_name("LANGUAGE");
  command.add_flag(
      "--force", arguments.force,
      "Import texts even if they have changed in the project since the export; if the English text has "
      "changed, mark the translation for review");
  command.add_flag("--quiet", arguments.quiet, "Print only warnings and counts");
  command.callback([inRoot] {
    arguments.file = absolutePath(arguments.file);
    runImport(inRoot(), arguments);
  });
}

void addPageCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string file;
  static std::vector<std::string> sources;
  CLI::App& command =
      addCommand(app, "page", "Write an HTML page of all texts in all languages", "page -o texts.html");
  command.add_option("-o,--output", file, "The HTML file (default: build/texts.html)")->type_name("FILE");
  addSourcesOption(command, sources);
  command.callback([inRoot] {
    const std::string root = inRoot();
    const std::string page = pageOf(root, sources);
    writeFile(file.empty() ? root : "", file.empty() ? kPage : absolutePath(file), page);
    say("Wrote {}. Open it in a browser.\n", file.empty() ? root + "/" + kPage : file);
  });
}

void addPseudoCommand(CLI::App& app, const RootFinder& inRoot) {
  static std::string directory;
  CLI::App& command =
      addCommand(app, "pseudo", "Write the pseudo-locales xa (longer), xb (right to left) and xk (keys)",
                 "pseudo -o build/share/ZKStrings");
  command
      .add_option("-o,--output", directory,
                  "The app's share/ZKStrings folder (default: build/pseudo/share/ZKStrings)")
      ->type_name("DIR");
  command.callback([inRoot] {
    const std::string root = inRoot();
    if (directory.empty()) directory = pathInProject(root, kPseudoResources);
    writePseudoLocales(root, absolutePath(directory));
    say("Wrote xa, xb and xk to {}. To see one, make it the app's preferred language.\n", directory);
  });
}

}  // namespace

void addExchangeCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot) {
  addExportCommand(app, inRoot);
  addImportCommand(app, aloneInRoot);
  addPageCommand(app, inRoot);
  addPseudoCommand(app, inRoot);
}

}  // namespace zk::tools
