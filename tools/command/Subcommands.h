#pragma once

#include <functional>
#include <string>

#include <CLI/CLI.hpp>

namespace zk::tools {

/// Runs the command with `arguments`, in UTF-8 and without the program's name. Returns the exit status.
[[nodiscard]] int runCommandLine(const std::vector<std::string>& arguments);

/// Returns the project's root when a subcommand runs. Throws `CommandFailed` if there is none.
using RootFinder = std::function<std::string()>;

/// Adds a subcommand whose help ends with an `example`: the words after "zkstrings".
///
/// A subcommand runs while the command line is parsed, and prints its answer. It throws `CommandFailed` if something in
/// the user's files is wrong. Its arguments are static, because a process parses one command line.
inline CLI::App& addCommand(CLI::App& app, const std::string& name, const std::string& description,
                            const std::string& example) {
  CLI::App* const command = app.add_subcommand(name, description);
  command->footer("Example: zkstrings " + example);
  command->fallthrough();
  return *command;
}

/// These functions add the subcommands. Those that change the project find its root with `aloneInRoot`, which locks it.

/// init, generate, key, add, change, rename, remove and unused.
void addCatalogueCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot);
/// check, coverage, template and update. check throws if it finds an error, a warning under --strict, or a gap under
/// --complete; coverage, if a language has less than --at-least.
void addTranslationCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot);
/// export, import, page and pseudo. import throws if it refuses a text of the file.
void addExchangeCommands(CLI::App& app, const RootFinder& inRoot, const RootFinder& aloneInRoot);

}  // namespace zk::tools
