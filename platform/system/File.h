#pragma once

#include <optional>
#include <string>

namespace zk {

/// All bytes of the regular file at `path`. Nothing when there is no such file, when it cannot be read, when
/// it is larger than 256 MiB, or when it is no regular file (a directory, FIFO or device is refused without
/// waiting on it).
[[nodiscard]] std::optional<std::string> contentsOfFile(const std::string& path);

}  // namespace zk
