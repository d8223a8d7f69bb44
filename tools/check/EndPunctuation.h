#pragma once

#include <string_view>

namespace zk::tools {

/// What a text ends in, whatever the form that its script gives to it.
enum class Ending { none, stop, question, exclamation, ellipsis, colon, semicolon, comma };

/// How `text`, in `language`, ends. What may follow the punctuation is passed over: white space, closing
/// quotes and brackets, `</b>` and `*`, emoji, and marks of direction. The number of an ordinal, "3.", has no
/// full stop.
[[nodiscard]] Ending endingOf(std::string_view text, std::string_view language);

/// "a full stop".
[[nodiscard]] std::string_view nameOf(Ending ending);

}  // namespace zk::tools
