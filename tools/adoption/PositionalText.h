#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A part of a text whose placeholders go by their place, as in "%@ has %2$d coins".
struct FormatPiece {
  std::string text;           ///< as it stands there; of "%%" in `formatPiecesOf`, both signs
  std::size_t argument = 0;   ///< the place of the argument that it stands for, from 1; 0 for plain text
  std::string variable = {};  ///< of "%#@coins@", the variable "coins", which has plural forms
  bool isFormatted = false;   ///< whether it says how its number is written, as "%.2f" does
  std::size_t sizes = 0;      ///< how many arguments before its own tell its size, as in "%*d"
};

/// The pieces of `text`, in their order. A placeholder without a number takes the next argument, or, where
/// `always` is not 0, that one.
[[nodiscard]] std::vector<FormatPiece> formatPiecesOf(std::string_view text, std::size_t always = 0);

/// The highest place of an argument among `pieces`; 0 when there is none.
[[nodiscard]] std::size_t argumentsOf(const std::vector<FormatPiece>& pieces);

/// The name that the argument at the place `argument` of `all` gets: "value" when it is the only one, else
/// "first", "second" and so on. Empty beyond the tenth.
[[nodiscard]] std::string_view argumentName(std::size_t argument, std::size_t all);

/// The text of `pieces` with named placeholders, "%{value}", when the entry has `all` arguments. "%%" becomes
/// "%" where there is one, since only then was the text a format.
[[nodiscard]] std::string withNames(const std::vector<FormatPiece>& pieces, std::size_t all);

}  // namespace zk::tools
