#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/layout/PseudoLocales.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace zk::tools {

namespace {

constexpr const char* kPage = "build/texts.html";
constexpr const char* kPseudoResources = "build/pseudo/share/ZKStrings";

void addPageCommand(CLI::App& app, const RootFinder& inRoot) {
  struct Arguments {
    std::string file;
    std::vector<std::string> sources;
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("page", "Write an HTML page of all texts in all languages");
  command->add_option("-o,--output", arguments->file, "The HTML file (default: build/texts.html)")
      ->type_name("FILE");
  addSourcesOption(*command, arguments->sources);
  command->footer("Example: zkstrings page -o texts.html");
  command->callback([arguments, inRoot] {
    const std::string root = inRoot();
    const std::string& file = arguments->file;
    const std::string page = pageOf(root, arguments->sources);
    writeFile(file.empty() ? root : "",
              file.empty() ? kPage : (std::filesystem::current_path() / file).string(), page);
    say("Wrote {}. Open it in a browser.\n", file.empty() ? root + "/" + kPage : file);
  });
}

void addPseudoCommand(CLI::App& app, const RootFinder& inRoot) {
  const auto directory = std::make_shared<std::string>();
  auto* const command =
      app.add_subcommand("pseudo", "Write the pseudo-locales xa (longer), xb (right to left) and xk (keys)");
  command
      ->add_option("-o,--output", *directory,
                   "The app's share/ZKStrings folder (default: build/pseudo/share/ZKStrings)")
      ->type_name("DIR");
  command->footer("Example: zkstrings pseudo -o build/share/ZKStrings");
  command->callback([directory, inRoot] {
    const std::string root = inRoot();
    if (directory->empty()) *directory = pathInProject(root, kPseudoResources);
    writePseudoLocales(root, std::filesystem::current_path() / *directory);
    say("Wrote xa, xb and xk into {}. An app that prefers one of them shows it.\n", *directory);
  });
}

}  // namespace

void addPageCommands(CLI::App& app, const RootFinder& inRoot) {
  addPageCommand(app, inRoot);
  addPseudoCommand(app, inRoot);
}

}  // namespace zk::tools
