#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

// All functions take UTF-8. A byte that is not UTF-8 counts as one character.

/// Returns the offset of the first control character in `text` except line feeds and tabs; `npos` if there is none.
[[nodiscard]] std::size_t findControlCharacter(std::string_view text);

/// Whether `text` has a carriage return, which ends a line of C++, or a NUL, which ends a text.
[[nodiscard]] bool hasCarriageReturnOrNul(std::string_view text);
inline constexpr const char* kNoCarriageReturn =
    "the text has a carriage return or a NUL; remove it (\\n is a line break)";

/// Whether `text` is empty or has only white space.
[[nodiscard]] bool isBlank(std::string_view text);

/// The white space at both ends of a text, with every kind of space as " ". In a blank text, all of it is leading.
struct OuterSpace {
  std::string leading;
  std::string trailing;
  bool operator==(const OuterSpace&) const = default;
};
[[nodiscard]] OuterSpace outerSpace(std::string_view text);

/// Returns how often `text` contains `part`.
[[nodiscard]] std::size_t countOf(std::string_view text, std::string_view part);

/// `text` with each placeholder replaced by a space.
[[nodiscard]] std::string withoutPlaceholders(std::string_view text);

/// The runs of letters, marks and digits in `text`.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view text);

/// The words of `text` except numbers and single letters.
[[nodiscard]] std::vector<std::string_view> wordsToRead(std::string_view text);

/// The runs of decimal digits in `text`, of any script, in ASCII digits and sorted.
[[nodiscard]] std::vector<std::string> numbersIn(std::string_view text);

/// The number of user-perceived characters (extended grapheme clusters) of `text`.
[[nodiscard]] std::size_t charactersIn(std::string_view text);

}  // namespace zk::tools
