#include <ZKStrings/tools/command/PageCommandLine.h>
#include <ZKStrings/tools/layout/Lengths.h>
#include <ZKStrings/tools/layout/PseudoLanguages.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>

#include <cstddef>
#include <memory>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

using RootFinder = std::function<std::string()>;

constexpr const char* kPage = "/build/texts.html";
constexpr const char* kPseudoResources = "/build/pseudo/share/ZKStrings";

void addPageCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto file = std::make_shared<std::string>();
  auto* const command = app.add_subcommand("page", "Write all texts in all languages as a page to look at");
  command->add_option("-o,--output", *file, "The HTML file; build/texts.html otherwise")->type_name("FILE");
  command->footer("Example: zkstrings page -o texts.html");
  command->callback([file, inRoot] {
    const std::string root = inRoot();
    const std::string page = pageOf(root);
    if (file->empty()) *file = root + kPage;
    writeFile(".", *file, page);
    fmt::print("Wrote {}. Open it in a browser.\n", *file);
  });
}

void addPseudoCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto directory = std::make_shared<std::string>();
  auto* const command =
      app.add_subcommand("pseudo", "Write the pretend languages xa (longer) and xb (right to left)");
  command
      ->add_option("-o,--output", *directory,
                   "The resources of the app to look at, share/ZKStrings; of build/pseudo otherwise")
      ->type_name("DIR");
  command->footer("Example: zkstrings pseudo -o build/share/ZKStrings");
  command->callback([directory, inRoot] {
    const std::string root = inRoot();
    if (directory->empty()) *directory = root + kPseudoResources;
    writePseudoLanguages(root, *directory);
    fmt::print("Wrote xa and xb into {}. An app that prefers one of them shows it.\n", *directory);
  });
}

void addLengthsCommand(CLI::App& app, const RootFinder& inRoot) {
  struct Arguments {
    std::vector<std::string> languages;
    std::size_t limit = 20;
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("lengths", "List the texts that come out longest beside English");
  command->add_option("languages", arguments->languages, "The languages; without any, all")
      ->type_name("LANGUAGE");
  command->footer("Example: zkstrings lengths de pl --limit 10");
  command->add_option("--limit", arguments->limit, "How many to list")
      ->check(CLI::Range(std::size_t{0}, std::size_t{1'000'000}))
      ->type_name("N")
      ->capture_default_str();
  command->callback([arguments, inRoot] {
    const std::string root = inRoot();
    for (std::string& language : arguments->languages) language = existingLanguage(root, language);
    fmt::print("{}", formatted(widestTranslations(root, arguments->languages, arguments->limit)));
  });
}

}  // namespace

void addPageCommands(CLI::App& app, const RootFinder& inRoot) {
  addPageCommand(app, inRoot);
  addLengthsCommand(app, inRoot);
  addPseudoCommand(app, inRoot);
}

}  // namespace zk::tools
