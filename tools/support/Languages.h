#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The name of the directory with the English texts.
inline constexpr std::string_view kBase = "Base";

/// The sorted languages of the project at `root`: "Base", "de". Throws `CommandFailed` if resources/ cannot be listed.
[[nodiscard]] std::vector<std::string> languagesIn(const std::string& root);

/// The name of `language` in the language `in`. Both are codes.
[[nodiscard]] std::string languageName(const std::string& language, const std::string& in);

/// Returns the two-letter code of a language from its code ("sv", "swe"), an identifier ("sv-SE", "sv_SE.UTF-8"), the path of its
/// table or directory, or its name in English or in the language itself. Ignores ASCII case. Empty if there is none.
[[nodiscard]] std::string languageCodeOf(std::string_view word);

/// Returns the element of `languagesIn` for the language `word`. If there is none, throws a message with the nearest
/// one, as `std::invalid_argument` for a word of the command line, and as `CommandFailed` for one from `file`.
[[nodiscard]] std::string existingLanguage(const std::string& root, std::string_view word,
                                           const std::string& file = "");

/// Why the module never uses the directory of `language`, and what to do; empty if it does. The module looks for
/// directories named after the first two characters of the user's languages, and uses Base.lproj for English.
[[nodiscard]] std::string whyNeverChosen(std::string_view language);

}  // namespace zk::tools
