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

/// `text` with its control characters as escapes, \U000d for a carriage return. Line feeds stay if `keepsLines`.
[[nodiscard]] std::string withoutControls(std::string_view text, bool keepsLines = false);

}  // namespace zk::tools
