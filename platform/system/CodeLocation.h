#pragma once

#include <string>
#include <system_error>

namespace zk {

/// The absolute path of the shared library or executable whose code or data lies at `address`, as it was
/// loaded: links in it are not followed, and it may hold "." and "..". Where the program loaded it by a
/// relative path, the kernel's own name for the file, so that a change of the working directory does no harm.
/// Empty when the file is not known; `failure` then says whether that may pass.
[[nodiscard]] std::string fileHolding(const void* address, std::error_code& failure);

/// The absolute path of the running executable, from the kernel or, without /proc, from the path by which the
/// program was started. Empty when it is not known; `failure` then says whether that may pass.
[[nodiscard]] std::string executablePath(std::error_code& failure);

}  // namespace zk
