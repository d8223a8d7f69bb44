#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// Tells the project's root when a command runs. Throws `CommandFailed` when there is none.
using RootFinder = std::function<std::string()>;

/// These add the commands for translations to `app`. When parsing runs one, it prints its answer; it throws
/// `CommandFailed` when it cannot give one.

/// `status`, which must outlive the parsing, becomes 1 when `check` finds an error, a warning under --strict,
/// or a gap under --complete.
void addCheckCommand(CLI::App& app, const RootFinder& inRoot, int& status);
void addCoverageCommand(CLI::App& app, const RootFinder& inRoot);
void addTemplateCommand(CLI::App& app, const RootFinder& inRoot);
void addUpdateCommand(CLI::App& app, const RootFinder& inRoot);

}  // namespace zk::tools
