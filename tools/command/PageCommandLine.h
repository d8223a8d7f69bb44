#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// Adds the commands page and pseudo to `app`. Each works in the project whose root `inRoot` returns when the
/// command runs.
void addPageCommands(CLI::App& app, const std::function<std::string()>& inRoot);

}  // namespace zk::tools
