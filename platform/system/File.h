#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace zk {

/// Whether the same call may succeed soon: the system is short of descriptors or memory, a network file system does not
/// answer, or the call was interrupted. Every other failure is an answer, and may be kept.
[[nodiscard]] bool isTemporary(const std::error_code& failure);

/// Whether the call failed for lack of permission.
[[nodiscard]] bool isRefusal(const std::error_code& failure);

/// Whether `name` is a single file name: it cannot lead to another directory.
[[nodiscard]] bool isFileName(std::string_view name);

/// Converts `path` from UTF-8 for the standard library, which by default assumes UTF-8 only on some systems.
[[nodiscard]] std::filesystem::path nativePath(const std::string& path);

/// Returns `path` without "." and "..". Looks nothing up on the disk, so a link before ".." is removed with it.
[[nodiscard]] std::string normalPath(const std::string& path);

/// Whether a file or directory is at `path`.
[[nodiscard]] bool pathExists(const std::string& path);

/// Whether a directory or a link to one is at `path`. If not, `failure` is the reason; it is cleared otherwise.
[[nodiscard]] bool directoryExists(const std::string& path, std::error_code& failure);

/// Reads all bytes of the regular file at `path`. Returns an error if there is none, if it cannot be read, or if it is
/// larger than 256 MiB. Never waits for a FIFO or device.
/// Requires: `path` contains no NUL.
[[nodiscard]] std::error_code readRegularFile(const std::string& path, std::string& bytes);

/// Returns all bytes of the file at `path`. If `readRegularFile` fails, returns nothing, and `failure` is the reason.
[[nodiscard]] inline std::optional<std::string> contentsOfFile(const std::string& path,
                                                               std::error_code& failure) {
  std::optional<std::string> bytes(std::in_place);
  const bool isPath = path.find('\0') == std::string::npos;
  failure = isPath ? readRegularFile(path, *bytes) : make_error_code(std::errc::no_such_file_or_directory);
  if (failure) bytes.reset();
  return bytes;
}
/// Returns all bytes of the file at `path`, or nothing, for callers that do not need the reason.
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
