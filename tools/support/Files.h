#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// `path` below `folder`, or `path` if that is absolute. Paths are in UTF-8, with slashes.
[[nodiscard]] std::string pathBelow(const std::string& folder, const std::string& path);

/// `path` as seen from the working directory.
[[nodiscard]] std::string absolutePath(const std::string& path);

/// The nearest directory at or above the working directory with catalogue/entries.json. Throws `CommandFailed` if there is none.
[[nodiscard]] std::string findRoot();

/// `directory`, if it is the root of a project. Throws `CommandFailed` if it has no catalogue.
[[nodiscard]] std::string rootAt(const std::string& directory);

/// Resolves the links in `path` below `root`. Throws `CommandFailed` if a link leads out of `root`, unless `root` is empty.
[[nodiscard]] std::string pathInProject(const std::string& root, const std::string& path);

/// Keeps other commands from changing the project at `root` until this process ends, and removes the temporary files
/// that a killed command has left there. Waits for a command that holds the lock, and says so on standard error.
void lockProject(const std::string& root);

/// All bytes of the file at `path` below `root`. Throws `CommandFailed` if it cannot be read.
[[nodiscard]] std::string readFile(const std::string& root, const std::string& path);

/// The new contents of a file.
struct FileChange {
  std::string path;  ///< below the project's root
  std::string bytes;
};

/// Replaces all of the files or none, even if a signal interrupts the command: writes temporary files, and then renames
/// them in the order of `changes`. If the process is killed between two renames, the last files are unchanged, so the
/// last file must be the one that shows the next command that work is left.
///
/// A file keeps its permissions and, as far as the system allows it, its owner and group. A symbolic link stays; the file
/// that it points to is replaced, if `pathInProject` allows it. Throws `CommandFailed` if a file cannot be written.
void writeFiles(const std::string& root, const std::vector<FileChange>& changes);

/// Replaces one file in the same way.
void writeFile(const std::string& root, const std::string& path, std::string_view bytes);

}  // namespace zk::tools
