#pragma once

#include <string>

namespace zk {

/// The absolute path of the shared library or executable whose code or data lies at `address`, wherever the
/// working directory has moved since it was loaded; empty when the address belongs to no file.
[[nodiscard]] std::string fileHolding(const void* address);

/// The absolute path of the running executable.
[[nodiscard]] std::string executablePath();

/// The path of the directory that `path` lies in: everything before its last slash.
[[nodiscard]] std::string directoryOf(const std::string& path);

}  // namespace zk
