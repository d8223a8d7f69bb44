#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A place in a text: its line and its column, in characters, both from 1.
struct Position {
  std::size_t line;
  std::size_t column;
};

/// Finds the positions of byte offsets. The offsets must be in rising order, so the text is read only once.
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

/// The lines of `text`, without the line feeds that end them.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

}  // namespace zk::tools
