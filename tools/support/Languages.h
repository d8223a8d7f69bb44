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

/// The two-letter code of the language that `word` means: a code of two or three letters ("sv", "swe"), an identifier
/// ("sv-SE", "sv_SE.UTF-8"), the path of its table or of its directory, or the language's name in English or in the
/// language itself, without regard to the case of ASCII letters. Empty when it means none, or one that has no such code.
[[nodiscard]] std::string languageCodeOf(std::string_view word);

/// The directory name, among those of `languagesIn`, of the language that `word` means: "Base" or a code. If there is none,
/// the message suggests the nearest. It is thrown as `std::invalid_argument` for a word of the command line, and
/// as `CommandFailed` for one from `file`.
[[nodiscard]] std::string existingLanguage(const std::string& root, std::string_view word,
                                           const std::string& file = "");

/// Why the module never chooses the directory that is named after `language`, and what to do; empty when it
/// does. It looks for directories named by the first two characters of the user's languages, and for
/// Base.lproj instead of English.
[[nodiscard]] std::string whyNeverChosen(std::string_view language);

}  // namespace zk::tools
