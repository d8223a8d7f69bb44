#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// Adds the developers' subcommands to the command line: generate, key, add, change and remove. Each works in
/// the project whose root `inRoot` gives when it runs.
void addCatalogueCommands(CLI::App& app, const std::function<std::string()>& inRoot);

}  // namespace zk::tools
