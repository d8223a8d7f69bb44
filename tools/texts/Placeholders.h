#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The names in the placeholders "%{name}" of `text`, in order.
[[nodiscard]] std::vector<std::string_view> placeholderNames(std::string_view text);

/// A placeholder of a text, or something that looks like a misspelt one, possibly with full-width or small signs.
struct PlaceholderUse {
  std::size_t offset;  ///< in the text
  /// "%{name}"; misspelt: "%{ name }", "%{name", "{name}", "%name", "％｛name｝"
  std::string_view spelled;
  std::string_view name;  ///< the first letters and digits in it; may be empty
  bool hasBrace;          ///< whether it has an opening brace, not only a percent sign
  bool isRight;           ///< whether it is "%{name}", with only letters and digits in the braces
};

/// Returns all placeholders and misspelt ones in `text`, in order.
[[nodiscard]] std::vector<PlaceholderUse> placeholderUses(std::string_view text);

/// A piece of a text: words, or a code that translators may move but must not change.
struct TextPiece {
  enum class Kind {
    words,
    placeholder,  ///< "%{name}", or a mark without a partner
    opening,      ///< "<b>", or the first of two "*"
    closing,      ///< "</b>", or the second of two "*"
  };

  Kind kind;
  std::string_view text;
};

/// Splits `text` into its pieces; joined, they are `text` again. Each opening has its closing, and pairs nest
/// properly: if marks overlap, have no partner or nest too deeply, all marks of the text are placeholders.
[[nodiscard]] std::vector<TextPiece> piecesOf(std::string_view text);

/// The text of the closing that belongs to the opening `text`.
[[nodiscard]] std::string_view closingOf(std::string_view text);

/// The number of each piece of `target`. Codes of `source` are numbered from 1 in order; a code of `target`
/// has the number of the same code in `source`, or else a number of its own. Words have 0.
[[nodiscard]] std::vector<std::size_t> codeNumbers(const std::vector<TextPiece>& target,
                                                   const std::vector<TextPiece>& source);

}  // namespace zk::tools
