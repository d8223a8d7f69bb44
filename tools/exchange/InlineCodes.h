#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A piece of a text: words, or a code in it that translators move but never change.
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

/// The pieces of `text`, in order; together they are the text. Every opening has its closing behind it, and
/// pairs lie within each other: where marks cross, or miss their partners, they are all placeholders.
[[nodiscard]] std::vector<TextPiece> piecesOf(std::string_view text);

/// Numbers for the codes of `target`, the same, from 1, that they have in `source`, where codes count in
/// order. What `source` does not have gets numbers behind. Words have 0.
[[nodiscard]] std::vector<std::size_t> codeNumbers(const std::vector<TextPiece>& target,
                                                   const std::vector<TextPiece>& source);

}  // namespace zk::tools
