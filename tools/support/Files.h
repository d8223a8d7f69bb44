#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The root of the project that the working directory lies in: the nearest directory upward with
/// catalogue/entries.json. Throws `CommandFailed` when there is none.
[[nodiscard]] std::string findRoot();

/// `directory`, if it is the root of a project. Throws `CommandFailed` when it holds no catalogue.
[[nodiscard]] std::string rootAt(const std::string& directory);

/// All bytes of the file at `path` below `root`. Throws `CommandFailed` when it cannot be read.
[[nodiscard]] std::string readFile(const std::string& root, const std::string& path);

/// What a file is to hold.
struct FileChange {
  std::string path;  ///< below the project's root
  std::string bytes;
};

/// Replaces all of the files, or none, also when the user interrupts: what is new is written beside them first
/// and then put in their places. Files keep their permissions, links keep pointing to them. Throws
/// `CommandFailed`, naming the file, when it fails.
void writeFiles(const std::string& root, const std::vector<FileChange>& changes);

/// The same for one file.
void writeFile(const std::string& root, const std::string& path, std::string_view bytes);

}  // namespace zk::tools
