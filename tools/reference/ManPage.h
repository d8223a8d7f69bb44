#pragma once

#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// The manual page of the command that `app` describes, in the markup of man(7): its subcommands, their arguments,
/// options and examples, and the rules of `check`.
[[nodiscard]] std::string manPageOf(const CLI::App& app);

}  // namespace zk::tools
