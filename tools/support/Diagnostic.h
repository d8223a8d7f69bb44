#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A place in a text: its line and its column, in characters, both from 1.
struct Position {
  std::size_t line;
  std::size_t column;
};

/// Finds the positions of byte offsets, and reads the text only once. Requires: the offsets are in rising order.
class PositionFinder {
 public:
  /// `text` is UTF-8, begins at the position `begin`, and must outlive the finder.
  explicit PositionFinder(std::string_view text, Position begin = {1, 1}) : text_(text), position_(begin) {}
  /// The position of `offset`, or of the end of the text if `offset` is beyond it.
  [[nodiscard]] Position at(std::size_t offset);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  Position position_;
};

/// The position of the byte `offset` of the UTF-8 text `text`.
[[nodiscard]] Position positionOf(std::string_view text, std::size_t offset);

/// The lines of `text`, without the LF or CR LF that ends them.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

/// The severity of a diagnostic, the worst first. A gap is a text that is not translated yet, which is not an error.
enum class Severity { error, warning, gap, note };

[[nodiscard]] const char* nameOf(Severity severity);

/// Something wrong in a file of the project, as a compiler would report it.
struct Diagnostic {
  Severity severity = Severity::error;
  std::string file;        ///< relative to the project's root, or absolute if it is not a file of the project
  std::size_t line = 1;    ///< from 1
  std::size_t column = 1;  ///< from 1, in characters
  std::string rule;        ///< the name that turns the rule off; empty if it cannot be turned off
  std::string message;     ///< what is wrong; what to do
};

using Diagnostics = std::vector<Diagnostic>;

/// Returns the name of `file` of the project at `root`, relative to the working directory, as editors and CI expect it.
[[nodiscard]] std::string fromWorkingDirectory(const std::string& file, const std::string& root);

/// Returns the diagnostics of the project at `root` with such names.
[[nodiscard]] Diagnostics fromWorkingDirectory(Diagnostics diagnostics, const std::string& root);

/// The diagnostic as one line, "file:line:column: error: message [rule]", in colours if `coloured`.
[[nodiscard]] std::string formatted(const Diagnostic& diagnostic, bool coloured);

/// The diagnostics as a JSON array with one object per line. Its members are file, line, column, severity, rule, message.
[[nodiscard]] std::string toJson(const Diagnostics& diagnostics);

/// Returns an error for each merge conflict that Git has left in `text`, the content of `file`.
[[nodiscard]] Diagnostics mergeConflictsIn(std::string_view text, const std::string& file);

/// Thrown if a command fails because of its files. The program prints the diagnostics, if any, and exits with status 1.
struct CommandFailed {
  Diagnostics diagnostics;
};

/// Throws `CommandFailed` with one error.
[[noreturn]] void fail(std::string file, Position at, std::string message);
/// Throws `CommandFailed` with one error about the file as a whole, at its first character.
[[noreturn]] void fail(std::string file, std::string message);

}  // namespace zk::tools
