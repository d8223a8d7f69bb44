#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// Adds the commands for those who look at the texts to `app`: page, pseudo and lengths. Each works in the
/// project whose root `inRoot` gives when it runs.
void addPageCommands(CLI::App& app, const std::function<std::string()>& inRoot);

}  // namespace zk::tools
