#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zk {

/// The byte-order mark in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Whether a text without a byte-order mark may be in another encoding than UTF-8.
enum class UnmarkedText {
  isUtf8,          ///< as in a string table
  mayBeUtf16Or32,  ///< as in JSON, whose first character is ASCII, so its zero bytes show the encoding
};

/// Returns the UTF-8 form, without byte-order mark, of a text in UTF-8, UTF-16 or UTF-32, in either byte order.
/// Returns nothing if the bytes are not well-formed in their encoding.
[[nodiscard]] std::optional<std::string> decodedText(std::string bytes, UnmarkedText unmarked);

}  // namespace zk
