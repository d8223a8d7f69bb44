#pragma once

#include <ZKStrings/tools/EnglishTexts.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace zk::tools {

/// The table from which a translator into `language` begins: every key that the module looks up, in catalogue
/// order, with the English text, under a comment with the English text and its placeholders.
[[nodiscard]] std::string templateFor(std::string_view language, const EnglishTexts& english);

/// Writes that table to the project at `root`, and gives the number of its texts. Throws `CommandFailed`,
/// having written nothing, when the language has a table already or the module would never choose its
/// directory, or when the catalogue or the English table is wrong.
std::size_t writeTemplate(const std::string& root, const std::string& language);

}  // namespace zk::tools
