#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace zk {

/// Converts the system's UTF-16 to UTF-8. Invalid UTF-16 becomes U+FFFD.
[[nodiscard]] std::string toUTF8(std::wstring_view text);

/// Converts UTF-8 to the system's UTF-16. Invalid UTF-8 becomes U+FFFD.
[[nodiscard]] std::wstring toUTF16(std::string_view text);

/// Returns `path`, in UTF-8, as an absolute path for system calls. Its prefix \\?\ permits more than 260 characters,
/// and names such as "con.lproj", which are otherwise reserved for devices.
[[nodiscard]] std::wstring systemPath(const std::string& path);

/// Why the last system call failed.
[[nodiscard]] std::error_code lastFailure();

}  // namespace zk
