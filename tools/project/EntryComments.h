#pragma once

#include <ZKStrings/tools/project/Table.h>

#include <optional>
#include <string_view>
#include <vector>

namespace zk::tools {

/// What the comments before an entry tell the tools. Such a comment is one word, a colon and what is told:
///
///     /* English: "%{n} Coins"; placeholders: %{n} */
///     /* context: A button that opens the settings. At most 14 characters. */
///     /* state: needs-review */
///     /* check: off end-punctuation, marks */

inline constexpr std::string_view kExplanation = "English:";
inline constexpr std::string_view kContext = "context:";
inline constexpr std::string_view kState = "state:";
inline constexpr std::string_view kCheck = "check:";

/// Returns the words of `comment` after `name`, one of those above, without spaces and commas; nothing if it is another
/// comment.
[[nodiscard]] std::optional<std::vector<std::string_view>> wordsTold(const TableEntry::Comment& comment,
                                                                     std::string_view name);

/// Whether the comments before `entry` switch `rule` off.
[[nodiscard]] bool isSwitchedOff(const TableEntry& entry, std::string_view rule);

}  // namespace zk::tools
