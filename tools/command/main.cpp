#include <ZKStrings/tools/command/HelpFormatter.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/reference/ReferenceCommand.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Nearest.h>
#include <ZKStrings/tools/support/Undisturbed.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace {

using namespace zk::tools;

constexpr int kFailure = 1;
constexpr int kWrongUse = 2;

/// Prints a line on standard error. That it cannot be printed keeps the command from nothing.
void complain(const std::string& line) {
  std::fputs((line + "\n").c_str(), stderr);
}

/// What is wrong with a command line that names no subcommand; empty when that is not what is wrong.
std::string unknownCommand(const CLI::App& app) {
  const std::vector<std::string> words = app.remaining();
  if (!app.get_subcommands().empty() || words.empty()) return "";
  std::vector<std::string_view> names;
  for (const CLI::App* const command : app.get_subcommands({})) names.push_back(command->get_name());
  const std::optional<std::string_view> meant = nearest(words.front(), names);
  return fmt::format(
      "\"{}\" is no command; {}", words.front(),
      meant ? fmt::format("write \"{}\" if that is meant", *meant) : "zkstrings --help lists them");
}

int run(int argc, char** argv) {
  CLI::App app{"Keeps the catalogue of texts and its translations right.", "zkstrings"};
  app.formatter(std::make_shared<HelpFormatter>());
  app.set_version_flag("--version", "zkstrings " ZK_VERSION);
  app.require_subcommand(1);
  std::string root;
  app.add_option("--root", root, "The project's folder; found from here upward otherwise")->type_name("DIR");
  const auto inRoot = [&] { return root.empty() ? findRoot() : rootAt(root); };
  const auto aloneInRoot = [&] {
    const std::string found = inRoot();
    keepOthersOut(found);
    return found;
  };

  int status = 0;
  addInitCommand(app);
  addCatalogueCommands(app, aloneInRoot);
  addCheckCommand(app, inRoot, status);
  addCoverageCommand(app, inRoot);
  addTemplateCommand(app, aloneInRoot);
  addUpdateCommand(app, aloneInRoot);
  addExportCommand(app, inRoot);
  addImportCommand(app, aloneInRoot, status);
  addPageCommands(app, inRoot);
  for (CLI::App* const command : app.get_subcommands({})) command->fallthrough();

  if (argc > 1 && argv[1] == std::string_view(kReference))
    return printReference(app, {argv + 2, argv + argc});
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& wrongUse) {
    const std::string message = unknownCommand(app);
    if (message.empty()) return app.exit(wrongUse) == 0 ? 0 : kWrongUse;
    complain(message);
    return kWrongUse;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // what may not be written is told of
  try {
    const int status = run(argc, argv);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    complain("the output cannot be written; see that its place has room");
  } catch (const CommandFailed& failed) {
    print(stderr, failed.diagnostics);
  } catch (const std::invalid_argument& refused) {
    complain(refused.what());
    return kWrongUse;
  } catch (const std::exception& failure) {
    complain(std::string("zkstrings: ") + failure.what());
  }
  return kFailure;
}
