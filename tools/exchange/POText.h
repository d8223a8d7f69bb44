#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// What separates the parts of a line of a PO file.
inline constexpr std::string_view kPOBlanks = " \t\r";

/// `text` without the blanks in front.
[[nodiscard]] std::string_view behindBlanks(std::string_view text);

/// `text` between quotes, with the escapes of C, on one line.
[[nodiscard]] std::string quotedForPO(std::string_view text);

/// Adds to `text` what stands between the quotes of `quoted`, a line from its quote to its end. Gives what is
/// wrong with it, and what to do; null when it is right.
[[nodiscard]] const char* appendUnquoted(std::string_view quoted, std::string& text);

}  // namespace zk::tools
