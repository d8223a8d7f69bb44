#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

/// The width of the help and other texts that the command wraps, in columns.
inline constexpr std::size_t kTerminalWidth = 80;

/// Wraps `text` at `width` code points, but not within words. Indents each line but the first by `indent` spaces.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

/// Prints `text`. Control characters other than line feeds become escapes, so no file or argument steers the terminal.
void print(std::FILE* stream, std::string_view text);

/// Prints the diagnostics, one a line, in colours if `stream` is a terminal and NO_COLOR is not set.
void print(std::FILE* stream, const Diagnostics& diagnostics);

/// Prints a formatted text to standard output, without control characters.
template <class... Arguments>
void say(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
  print(stdout, fmt::format(format, std::forward<Arguments>(arguments)...));
}

}  // namespace zk::tools
