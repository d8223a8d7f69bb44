// The layout of the tour: a call on the left and its text on the right, in 80 columns.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include <unistd.h>

constexpr std::size_t kColumns = 80;
constexpr std::size_t kAccessorColumns = 36;

/// `text` in bold if the output is a terminal and NO_COLOR is not set.
inline std::string bold(std::string_view text) {
  static const bool isWelcome = isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
  return isWelcome ? "\x1b[1m" + std::string(text) + "\x1b[0m" : std::string(text);
}

inline void showHeading(std::string_view title) {
  std::cout << "\n" << bold(title) << "\n";
}

/// The number of terminal columns that `text` takes. It is an estimate: characters from U+3000 to U+FFFF, most of them
/// East Asian, count as two columns, all others as one.
inline std::size_t columnsOf(std::string_view text) {
  std::size_t columns = 0;
  for (const char byte : text) {
    const auto lead = static_cast<unsigned char>(byte);
    if ((lead & 0xC0U) != 0x80U) columns += lead >= 0xE3U && lead < 0xF0U ? 2 : 1;
  }
  return columns;
}

/// Prints the call `accessor` and the text that it returned. Long texts wrap at spaces.
inline void show(std::string_view accessor, std::string_view text) {
  std::cout << "  " << accessor;
  std::size_t column = 2 + accessor.size();
  const auto goToTextColumn = [&column] {
    if (column > kAccessorColumns) std::cout << "\n", column = 0;
    std::cout << std::string(kAccessorColumns - column, ' ');
    column = kAccessorColumns;
  };
  goToTextColumn();
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find_first_of(" \n", 1));
    const bool startsLine = word.front() == '\n';
    if (startsLine || (column > kAccessorColumns && column + columnsOf(word) > kColumns)) {
      std::cout << "\n";
      column = 0;
      goToTextColumn();
    }
    const std::string_view shown =
        column == kAccessorColumns && (startsLine || word.front() == ' ') ? word.substr(1) : word;
    std::cout << shown;
    column += columnsOf(shown);
    text.remove_prefix(word.size());
  }
  std::cout << "\n";
}
