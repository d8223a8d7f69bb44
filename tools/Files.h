#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The root of the project that the working directory lies in: the nearest directory upward with
/// catalogue/entries.json. Throws `CommandFailed` when there is none.
[[nodiscard]] std::string findRoot();

/// All bytes of the file at `path` below `root`. Throws `CommandFailed` when it cannot be read.
[[nodiscard]] std::string readFile(const std::string& root, const std::string& path);

/// Replaces the file as a whole, or not at all: it is written beside and renamed. Throws `CommandFailed` when
/// it fails.
void writeFile(const std::string& root, const std::string& path, std::string_view bytes);

/// The lines of `text`, without their ends.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

}  // namespace zk::tools
