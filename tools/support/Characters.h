#pragma once

#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace zk::tools {

/// The code points of a UTF-8 text, for a range-based `for`. A byte that is not UTF-8 counts as one without a value.
class CodePoints {
 public:
  explicit CodePoints(std::string_view text) : rest_(text) {}

  [[nodiscard]] CodePoints begin() const { return *this; }
  [[nodiscard]] static std::default_sentinel_t end() { return {}; }

  CodePoint operator*() const { return firstCodePoint(rest_); }
  CodePoints& operator++() {
    rest_.remove_prefix(firstCodePoint(rest_).bytes.size());
    return *this;
  }
  bool operator==(std::default_sentinel_t /*end*/) const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

/// The number of code points of `text`, UTF-8; a byte that is not counts as one.
[[nodiscard]] std::size_t lengthOf(std::string_view text);

/// `text` with its ASCII capitals as small letters, as keys and language codes are compared.
[[nodiscard]] std::string lowerCased(std::string_view text);

/// `text` with each `from` replaced by `to`. Compares bytes: a combining mark after `from` changes nothing.
[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// `text` with line breaks instead of blanks, so that no line has more than `width` code points, but for
/// words that have more. What begins a new line is behind `indent` blanks, but for the first.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

/// The columns that what the command prints about itself fits in.
inline constexpr std::size_t kTerminalWidth = 80;

}  // namespace zk::tools
