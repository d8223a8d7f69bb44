#pragma once

#include <string>
#include <system_error>

namespace zk {

/// Returns the absolute path of the shared library or executable that holds the code or data at `address`, as it
/// was loaded: it may contain links, "." and "..". If the program loaded it by a relative path, returns the kernel's
/// path of the file, which does not depend on the working directory. Returns an empty path if the file is not known;
/// `failure` is then the reason.
[[nodiscard]] std::string fileHolding(const void* address, std::error_code& failure);

/// Returns the absolute path of the running executable, from the kernel or, without /proc, from the path by which
/// the program was started. Returns an empty path if it is not known; `failure` is then the reason.
[[nodiscard]] std::string executablePath(std::error_code& failure);

}  // namespace zk
