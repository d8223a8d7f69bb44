#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zk {

/// The byte-order mark in UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Returns the UTF-8 form, without byte-order mark, of a text in UTF-8, UTF-16 or UTF-32, in either byte order. Without a
/// byte-order mark, the zero bytes of the first character show the encoding, so that character must be ASCII. Returns
/// nothing if the bytes are not well-formed in their encoding.
[[nodiscard]] std::optional<std::string> decodedText(std::string bytes);

}  // namespace zk
