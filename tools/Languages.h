#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The name of the English directory, the base of all others.
inline constexpr std::string_view kBase = "Base";

/// The languages that have a directory below resources/ of the project at `root`, sorted: "Base", "de".
/// Throws `CommandFailed` when resources/ cannot be listed.
[[nodiscard]] std::vector<std::string> languagesIn(const std::string& root);

/// Why the module never chooses the directory that is named after `language`, and what to do; empty when it
/// does. It looks for directories named by the first two characters of the user's languages, and for
/// Base.lproj instead of English.
[[nodiscard]] std::string whyNeverChosen(std::string_view language);

/// Whether words of the language change with the number of things they count.
[[nodiscard]] bool inflectsForNumber(std::string_view language);

}  // namespace zk::tools
