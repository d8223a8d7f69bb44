#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

// All texts are UTF-8. A byte that is not UTF-8 counts as a character of its own and is never changed. Thread-safe.

/// One code point of a text, or one byte of it that is not UTF-8.
struct CodePoint {
  std::optional<char32_t> value;  ///< absent for a byte that is not UTF-8
  std::string_view bytes;         ///< the bytes of the text that encode it
};

/// Returns the code point at the beginning of `text`.
/// Requires: `text` is not empty.
[[nodiscard]] CodePoint firstCodePoint(std::string_view text);

/// Appends `codePoint` to `text` if it is a Unicode scalar value.
void appendCodePoint(std::string& text, char32_t codePoint);

/// Whether the general category is letter, mark or decimal digit.
[[nodiscard]] bool isLetterMarkOrDigit(char32_t codePoint);
[[nodiscard]] bool isDecimalDigit(char32_t codePoint);

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Returns the first two user-perceived characters (extended grapheme clusters) of `text`, or as many as it has.
[[nodiscard]] std::string_view firstTwoCharacters(std::string_view text);

/// Returns the position of the first `wanted`, an ASCII character, in `text`; `npos` if there is none. Skips a `wanted`
/// that is only a part of a user-perceived character, for example because an accent follows.
[[nodiscard]] std::size_t findCharacter(std::string_view text, char wanted);

/// Whether the language with the code `code`, such as "ar", is written from right to left.
[[nodiscard]] bool isRightToLeft(std::string_view code);

/// Returns `text` in upper case by Unicode's full default mapping, whatever the locale: "straße" becomes "STRASSE".
[[nodiscard]] std::string upperCased(std::string_view text);

namespace internal {

/// Returns the size in bytes of the first user-perceived character of `text`.
/// Requires: `text` is not empty.
[[nodiscard]] std::size_t firstClusterSize(std::string_view text);

/// Throws std::bad_alloc if memory is low. Called before steps in which ICU may initialize one of its tables: if
/// memory runs out in such a step, ICU never tries again.
void requireMemoryForICU();

}  // namespace internal

}  // namespace zk
