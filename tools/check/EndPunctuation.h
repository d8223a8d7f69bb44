#pragma once

#include <string_view>

namespace zk::tools {

/// The final punctuation of a text, in any script.
enum class Ending { none, stop, question, exclamation, ellipsis, colon, semicolon, comma };

/// Returns the final punctuation of `text`, in `language`. White space, closing quotes and brackets, `</b>`, `*`, emoji
/// and direction marks may follow it. An ordinal, "3.", has no full stop.
[[nodiscard]] Ending endingOf(std::string_view text, std::string_view language);

/// "a full stop".
[[nodiscard]] std::string_view nameOf(Ending ending);

}  // namespace zk::tools
