#pragma once

#include <ZKStrings/tools/exchange/Translations.h>

#include <string>

namespace zk::tools {

/// The texts of the module, each with its English, its translation in the table of `language` ("de") of the
/// project at `root`, and notes for translators, in catalogue order. Texts that are not translated yet have
/// no target; with `onlyLacking`, only those are given. Throws `CommandFailed` for the English table and for
/// a language without a table, and when the table, the English one or the catalogue is wrong.
[[nodiscard]] Translations translationsOf(const std::string& root, const std::string& language,
                                          bool onlyLacking);

}  // namespace zk::tools
