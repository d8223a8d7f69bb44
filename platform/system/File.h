#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace zk {

/// Whether the same call may succeed soon: the system is short of descriptors or memory, a network file system does not
/// answer, or the call was interrupted. Every other failure is an answer, and may be kept.
[[nodiscard]] bool isTemporary(const std::error_code& failure);

/// Whether the call failed for lack of permission.
[[nodiscard]] bool isRefusal(const std::error_code& failure);

/// Whether `name` is a single file name: it cannot lead to another directory.
[[nodiscard]] bool isFileName(std::string_view name);

/// Converts `path` from UTF-8 for the standard library, which takes other strings for UTF-8 only on some systems.
[[nodiscard]] std::filesystem::path nativePath(const std::string& path);

/// Returns `path` without "." and "..", which are not looked up, so a link before ".." is removed with it.
[[nodiscard]] std::string normalPath(const std::string& path);

/// Whether a file or directory is at `path`.
[[nodiscard]] bool pathExists(const std::string& path);

/// Whether a directory or a link to one is at `path`. If not, `failure` is the reason; it is cleared otherwise.
[[nodiscard]] bool directoryExists(const std::string& path, std::error_code& failure);

/// Returns all bytes of the regular file at `path`. Returns nothing if there is none, if it cannot be read, and if it is
/// larger than 256 MiB. Never waits for a FIFO or device. `failure` is the reason, and is cleared on success.
[[nodiscard]] std::optional<std::string> contentsOfFile(const std::string& path, std::error_code& failure);
/// Returns all bytes of the regular file at `path`, or nothing, for callers that do not need the reason.
[[nodiscard]] inline std::optional<std::string> contentsOfFile(const std::string& path) {
  std::error_code unused;
  return contentsOfFile(path, unused);
}

struct DirectoryEntry {
  std::string name;
  bool isDirectory;  ///< or a link to one
};

/// Returns the entries of the directory at `path`, without "." and "..", in no particular order. Returns none if
/// the directory cannot be listed completely; `failure` is the reason, and is cleared on success.
[[nodiscard]] std::vector<DirectoryEntry> entriesOf(const std::string& path, std::error_code& failure);

}  // namespace zk
