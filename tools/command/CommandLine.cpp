#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/reference/Reference.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The exit statuses, the same in each subcommand. The manual page lists them.
constexpr int kWrongFiles = 1;
constexpr int kWrongUsage = 2;

/// Breaks the lines of --help at words, to fit the width of a terminal.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_description(const CLI::App* command) const override {
    return wrapped(CLI::Formatter::make_description(command), kTerminalWidth);
  }
  std::string make_subcommand(const CLI::App* command) const override {
    return fmt::format("  {:<{}}{}\n", command->get_display_name(true), column_width_ - 2,
                       wrapped(command->get_description(), kTerminalWidth - column_width_, column_width_));
  }
  std::string make_option_desc(const CLI::Option* option) const override {
    return wrapped(CLI::Formatter::make_option_desc(option), kTerminalWidth - column_width_);
  }
};

void complain(std::string_view message) {
  print(stderr, fmt::format("{}\n", message));
}

/// The message about an unknown subcommand; empty if there is none.
std::string unknownCommand(const CLI::App& app) {
  const std::vector<std::string> words = app.remaining();
  if (!app.get_subcommands().empty() || words.empty()) return "";
  std::vector<std::string_view> names;
  for (const CLI::App* const command : app.get_subcommands({})) names.push_back(command->get_name());
  return fmt::format("\"{}\" is not a command; {}", words.front(),
                     didYouMean(nearest(words.front(), names), "zkstrings --help lists the commands"));
}

/// Prints the requested help, or a message about the command line. Returns the exit status.
int exit(const CLI::App& app, const CLI::ParseError& reason) {
  std::ostringstream out;
  std::ostringstream err;
  const bool isWrong = app.exit(reason, out, err) != 0;
  const std::string message = unknownCommand(app);
  print(stdout, out.str());
  print(stderr, message.empty() ? err.str() : message + "\n");
  return isWrong ? kWrongUsage : 0;
}

/// Prints the manual page for "man", or for "complete WORD..." the words that complete the last one. The build and
/// the shells' completion scripts run this as `zkstrings reference ...`, which is not in the help.
void printReference(const CLI::App& app, const std::vector<std::string>& words) {
  const bool isComplete = words.front() == "complete";
  std::fputs((isComplete ? completionOf(app, {words.begin() + 1, words.end()}) : manPageOf(app)).c_str(),
             stdout);
}

/// Runs the command line. Returns the exit status, or throws as the subcommands do.
int run(const std::vector<std::string>& arguments) {
  CLI::App app{"Manage the text catalogue and its translations", "zkstrings"};
  app.formatter(std::make_shared<HelpFormatter>());
  app.set_version_flag("--version", "zkstrings " ZK_VERSION);
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // a text may begin with a slash
  std::string root;
  app.add_option("--root", root,
                 "The project's folder (default: the nearest one at or above the current folder)")
      ->type_name("DIR");
  const auto inRoot = [&] { return root = root.empty() ? findRoot() : rootAt(root); };
  const auto aloneInRoot = [&] {
    lockProject(inRoot());
    return root;
  };

  addCatalogueCommands(app, inRoot, aloneInRoot);
  addTranslationCommands(app, inRoot, aloneInRoot);
  addExchangeCommands(app, inRoot, aloneInRoot);

  if (arguments.size() > 1 && arguments.front() == "reference") {
    printReference(app, {arguments.begin() + 1, arguments.end()});
    return 0;
  }
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& reason) {
    return exit(app, reason);
  } catch (const CommandFailed& failed) {
    print(stderr, fromWorkingDirectory(failed.diagnostics, root));
    return kWrongFiles;
  }
  return 0;
}

}  // namespace

int runCommandLine(const std::vector<std::string>& arguments) {
  int status = kWrongFiles;
  try {
    status = run(arguments);
  } catch (const std::invalid_argument& refused) {
    complain(refused.what());
    status = kWrongUsage;
  } catch (const std::exception& failure) {
    // Whether fmt::print throws if it cannot write depends on its version.
    if (std::ferror(stdout) == 0) complain(fmt::format("zkstrings: {}", failure.what()));
  }
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
  complain("the output cannot be written; is the disk full?");
  return std::max(status, kWrongFiles);
}

}  // namespace zk::tools
