#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

/// All functions take UTF-8. Bytes that are not UTF-8 count as characters of their own that equal only
/// themselves, and pass through unchanged. Any thread may call them.

/// One code point of a text, or one byte of it that is not UTF-8.
struct CodePoint {
  std::optional<char32_t> value;  ///< absent for a byte that is not UTF-8
  std::string_view bytes;         ///< the bytes that spell it in the text
};

/// The code point at the beginning of `text`, which must not be empty.
[[nodiscard]] CodePoint firstCodePoint(std::string_view text);

/// Appends `codePoint` to `text`; a number that is no Unicode scalar value is left out.
void appendCodePoint(std::string& text, char32_t codePoint);

/// The general categories letter, mark and decimal digit.
[[nodiscard]] bool isLetterMarkOrDigit(char32_t codePoint);
[[nodiscard]] bool isDecimalDigit(char32_t codePoint);

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// The first two user-perceived characters (extended grapheme clusters) of `text`, or all of it when it has
/// fewer.
[[nodiscard]] inline std::string_view firstTwoCharacters(std::string_view text);

/// Where the ASCII character `wanted` first stands in `text` as a user-perceived character of its own, not as
/// the base of one with accents or joiners; `npos` when it does not.
[[nodiscard]] std::size_t findCharacter(std::string_view text, char wanted);

/// `text` in upper case by the full default mapping of Unicode, whatever the locale: "straße" gives
/// "STRASSE".
[[nodiscard]] std::string upperCased(std::string_view text);

/// The same as `firstTwoCharacters`, by the full rules, also for what the quick way serves.
[[nodiscard]] std::string_view firstTwoClusters(std::string_view text);

inline std::string_view firstTwoCharacters(std::string_view text) {
  // Between two ASCII characters there is always a border, but between CR and LF.
  const auto isPlain = [](char character) {
    return static_cast<signed char>(character) >= 0 && character != '\r';
  };
  if (text.size() < 2) return text;
  const bool isQuick = isPlain(text[0]) && isPlain(text[1]) && (text.size() == 2 || isPlain(text[2]));
  return isQuick ? text.substr(0, 2) : firstTwoClusters(text);
}

}  // namespace zk
