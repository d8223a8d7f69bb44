#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Validator;
}  // namespace CLI

namespace zk::tools {

/// Returns the project's root when a subcommand runs. Throws `CommandFailed` if there is none.
using RootFinder = std::function<std::string()>;

/// These functions add subcommands to the command line `app`. A subcommand runs while the line is parsed, and prints its
/// answer. It throws `CommandFailed` if something in the user's files is wrong.

/// init, generate, key, add, change, rename and remove.
void addCatalogueCommands(CLI::App& app, const RootFinder& inRoot);
/// check. It throws if it finds an error, a warning under --strict, or a gap under --complete.
void addCheckCommand(CLI::App& app, const RootFinder& inRoot);
/// coverage. It throws if a language has less than --at-least.
void addCoverageCommand(CLI::App& app, const RootFinder& inRoot);
void addTemplateCommand(CLI::App& app, const RootFinder& inRoot);
void addUpdateCommand(CLI::App& app, const RootFinder& inRoot);
void addExportCommand(CLI::App& app, const RootFinder& inRoot);
/// import. It throws if it refuses a text of the file.
void addImportCommand(CLI::App& app, const RootFinder& inRoot);
void addUnusedCommand(CLI::App& app, const RootFinder& inRoot);
/// page and pseudo.
void addPageCommands(CLI::App& app, const RootFinder& inRoot);

/// Adds the option --sources, the folders in which a subcommand searches for the places that use a text.
void addSourcesOption(CLI::App& command, std::vector<std::string>& directories);

/// Refuses values of an option that are not whole numbers from 0 to `most`.
CLI::Validator isNumberUpTo(int most);

}  // namespace zk::tools
