#pragma once

#include <ZKStrings/tools/project/Table.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// Comments before an entry can have a meaning for the tools. They begin with a word and a colon:
///
///     /* English: "%{n} Coins"; placeholders: %{n} */
///     /* context: A button that opens the settings. At most 14 characters. */
///     /* state: needs-review; was "%{n} Tokens" */
///     /* check: off end-punctuation, marks */

inline constexpr std::string_view kExplanation = "English:";
inline constexpr std::string_view kContext = "context:";
inline constexpr std::string_view kState = "state:";
inline constexpr std::string_view kCheck = "check:";

/// Returns the words of `comment` after `name`, one of those above, without spaces, commas and semicolons; nothing if it is another
/// comment.
[[nodiscard]] std::optional<std::vector<std::string_view>> wordsTold(const TableEntry::Comment& comment,
                                                                     std::string_view name);

/// `text` in quotes, for a comment of a table.
[[nodiscard]] std::string quotedForComment(std::string_view text);

/// The text that the comment before `entry` that begins with `name` has in quotes: after `kExplanation` the English
/// text that the translation was made from, after `kState` the previous one. Nothing if no comment has one.
[[nodiscard]] std::optional<std::string> quotedIn(const TableEntry& entry, std::string_view name);

/// Whether the comments before `entry` switch `rule` off.
[[nodiscard]] bool isSwitchedOff(const TableEntry& entry, std::string_view rule);

}  // namespace zk::tools
