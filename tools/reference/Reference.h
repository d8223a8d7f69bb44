#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zk::tools {

/// The manual page of the command that `app` describes, in the markup of man(7).
[[nodiscard]] std::string manPageOf(const CLI::App& app);

/// The words that can complete the last of `words`, the command line without the command's name. There is one a line, with
/// a tab and an explanation after it, or the line ":files" for names of files. A shell may split --option=value in three.
[[nodiscard]] std::string completionOf(const CLI::App& app, const std::vector<std::string>& words);

}  // namespace zk::tools
