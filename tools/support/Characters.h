#pragma once

#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// The last code point of a UTF-8 text, or an empty text if the text is empty.
[[nodiscard]] std::string_view lastCodePoint(std::string_view text);

/// Whether `byte` continues a code point in UTF-8.
[[nodiscard]] constexpr bool isContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

[[nodiscard]] constexpr bool isAsciiLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// The number of code points in a UTF-8 text. A byte that is not UTF-8 counts as one.
[[nodiscard]] std::size_t lengthOf(std::string_view text);

/// `text` with its ASCII capitals in lower case.
[[nodiscard]] std::string lowerCased(std::string_view text);

/// `text` with each `from` replaced by `to`. Compares bytes: a combining mark after `from` changes nothing.
[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// `text` with each control character as an escape, such as \U000d for a carriage return. If `keepsLines`, line feeds stay.
[[nodiscard]] std::string withoutControls(std::string_view text, bool keepsLines = false);

/// Returns the candidate that `word` most likely misspells, the first one of several; nothing if none is near enough.
/// Distance is the number of bytes to insert, remove or replace, without regard to the case of ASCII letters.
[[nodiscard]] std::optional<std::string_view> nearest(std::string_view word,
                                                      const std::vector<std::string_view>& candidates);

/// The end of a message about a word that is not known: `did you mean "X"?`, or `otherwise` without a nearest word.
[[nodiscard]] std::string didYouMean(std::optional<std::string_view> nearest, std::string_view otherwise);

}  // namespace zk::tools
