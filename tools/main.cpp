#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/CatalogueCommands.h>
#include <ZKStrings/tools/Fault.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/HelpFormatter.h>
#include <ZKStrings/tools/TranslationCommandLine.h>

#include <cstdio>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <unistd.h>

namespace {

using namespace zk::tools;

constexpr int kWrongUse = 2;

/// What the shell passes as \n inside quotes is meant as a line break.
std::string withLineBreaks(std::string text) {
  zk::replaceOccurrences(text, "\\n", "\n");
  return text;
}

int run(int argc, char** argv) {
  CLI::App app{"Keeps the catalogue of texts and its translations right.", "zkstrings"};
  app.formatter(std::make_shared<HelpFormatter>());
  app.require_subcommand(1);
  std::string root;
  app.add_option("--root", root,
                 "The project's directory; without it, found from the working directory upward");
  const auto inRoot = [&] { return root.empty() ? findRoot() : root; };

  std::string text;
  bool plural = false;
  auto* const generateCommand =
      app.add_subcommand("generate", "Make the accessors of catalogue/entries.json anew");
  generateCommand->callback([&] { generate(inRoot()); });

  auto* const keyCommand = app.add_subcommand("key", "Print the key that a text gets");
  keyCommand->add_option("text", text, "The English text; \\n stands for a line break")->required();
  keyCommand->callback([&] { fmt::print("{}\n", zk::keyForText(withLineBreaks(text))); });

  auto* const addCommand =
      app.add_subcommand("add", "Add a text to the catalogue, the English table and the accessors");
  addCommand
      ->add_option("text", text, "The English text, with %{name} placeholders; \\n stands for a line break")
      ->required();
  addCommand->add_flag("--count", plural, "The text has plural forms, chosen by a count");
  addCommand->callback([&] {
    const std::string key = addEntry(inRoot(), withLineBreaks(text), plural);
    fmt::print("Added {}.{}\n", key,
               plural ? " Now write its five plural forms in resources/Base.lproj/Localizable.strings and "
                        "run zkstrings generate."
                      : "");
  });

  int status = 0;
  addCheckCommand(app, inRoot, status);
  addCoverageCommand(app, inRoot);
  addTemplateCommand(app, inRoot);
  addUpdateCommand(app, inRoot);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& wrongUse) {
    return app.exit(wrongUse) == 0 ? 0 : kWrongUse;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const CommandFailed& failed) {
    for (const Fault& fault : failed.faults)
      fmt::print(stderr, "{}\n", formatted(fault, isatty(STDERR_FILENO) == 1));
    return 1;
  }
}
