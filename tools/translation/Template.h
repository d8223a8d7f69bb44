#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace zk::tools {

/// The comment that explains a text to its translators: the English text and its placeholders.
[[nodiscard]] std::string explanationOf(const EnglishText& english);

/// The comment with the context of a text, or an empty text: `/* context: At most 14 characters. */`.
[[nodiscard]] std::string contextOf(const EnglishText& english);

/// The entry of a text that is to be translated: the English text, under a comment with it and its
/// placeholders, and marked as untranslated when there is something to translate in it.
[[nodiscard]] std::string untranslatedEntry(const EnglishText& english);

/// The table from which a translator into `language` begins: every key that the module looks up, in catalogue
/// order, as an untranslated entry.
[[nodiscard]] std::string templateFor(std::string_view language, const EnglishTexts& english);

/// Writes that table to the project at `root`, and gives the number of its texts. Throws `CommandFailed`,
/// having written nothing, when the language has a table already or the module would never choose its
/// directory, or when the catalogue or the English table is wrong; `std::invalid_argument` when `language` is
/// empty.
std::size_t writeTemplate(const std::string& root, const std::string& language);

}  // namespace zk::tools
