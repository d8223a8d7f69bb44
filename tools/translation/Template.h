#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>

#include <cstddef>
#include <string>

namespace zk::tools {

/// The comment that explains a text to its translators: the English text and its placeholders.
[[nodiscard]] std::string explanationOf(const EnglishText& english);

/// The comment with the context of a text, or an empty text: `/* context: At most 14 characters. */`.
[[nodiscard]] std::string contextOf(const EnglishText& english);

/// The entry of a text to be translated: the English text after the comments that explain it, marked as untranslated if
/// it has words to translate.
[[nodiscard]] std::string untranslatedEntry(const EnglishText& english);

/// Writes the table of a new language to the project at `root`: every key that the module looks up, in catalogue order,
/// as an untranslated entry. Returns the number of its texts. Throws `CommandFailed`, and writes nothing, if the language has a table already, if the module would never choose its directory, or if the catalogue or
/// the English table is wrong; `std::invalid_argument` if `language` is empty.
std::size_t writeTemplate(const std::string& root, const std::string& language);

}  // namespace zk::tools
