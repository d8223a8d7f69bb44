#pragma once

#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>

namespace zk::tools {

/// The result of an import into a table.
struct Import {
  std::size_t added = 0;         ///< texts that the table did not have
  std::size_t changed = 0;       ///< texts, with or without their state
  std::size_t stateChanged = 0;  ///< entries of which only the state has changed
  std::size_t unchanged = 0;     ///< texts that the table had already
  std::size_t refused = 0;       ///< texts that were not imported
  Diagnostics diagnostics;       ///< at places in the imported file: warnings, and a note on each change
};

/// Imports `translations`, which were read from `file`, into the table of their language of the project at `root`.
/// Refuses a text if nothing looks up its key, if the file has the key twice, or if the English text or the table's
/// translation has changed since the export. With `force`, the latter two are imported, and a translation of an older
/// English text is marked for review. A text without a translation changes nothing. Throws `CommandFailed`, having
/// changed nothing, if `check` finds an error in an imported text, for a language without a table, if the table or the
/// catalogue is wrong, and if the table cannot be written.
Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force);

}  // namespace zk::tools
