#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// From the gravest to the mildest. A gap is no fault: something that is not translated yet.
enum class Severity { error, warning, gap, note };

[[nodiscard]] const char* nameOf(Severity severity);

/// Something wrong in a file of the project, as a compiler would report it.
struct Fault {
  Severity severity = Severity::error;
  std::string file;        ///< relative to the project's root
  std::size_t line = 1;    ///< from 1
  std::size_t column = 1;  ///< from 1, in characters
  std::string rule;        ///< the name under which the rule can be switched off; empty when it cannot
  std::string message;     ///< what is wrong; what to do
};

using Faults = std::vector<Fault>;

/// The fault as one line, "file:line:column: error: message [rule]", with colours when `coloured`.
[[nodiscard]] std::string formatted(const Fault& fault, bool coloured);

/// Whether `stream` is a terminal whose user has nothing against colours (NO_COLOR).
[[nodiscard]] bool takesColours(std::FILE* stream);

/// The faults as a JSON array of objects with the members file, line, column, severity, rule and message, one
/// object a line.
[[nodiscard]] std::string toJson(const Faults& faults);

/// Thrown by a command that cannot go on; the program prints the faults and ends with a failure.
struct CommandFailed {
  Faults faults;
};

}  // namespace zk::tools
