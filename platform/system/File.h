#pragma once

#include <optional>
#include <string>
#include <system_error>

namespace zk {

/// All bytes of the regular file at `path`. Nothing when there is no such file, when it cannot be read, when
/// it is larger than 256 MiB, or when it is no regular file (a directory, FIFO or device is refused without
/// waiting on it).
[[nodiscard]] std::optional<std::string> contentsOfFile(const std::string& path);

/// The same; `failure` says why there is nothing, and is cleared when there is something.
[[nodiscard]] std::optional<std::string> contentsOfFile(const std::string& path, std::error_code& failure);

}  // namespace zk
