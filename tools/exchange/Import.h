#pragma once

#include <ZKStrings/tools/exchange/Translations.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>

namespace zk::tools {

/// What an import has done to a table.
struct Import {
  std::string language;
  std::size_t added = 0;      ///< texts that the table lacked
  std::size_t changed = 0;    ///< texts, with their marks
  std::size_t marked = 0;     ///< entries of which only the mark has changed
  std::size_t unchanged = 0;  ///< texts that were so already
  std::size_t refused = 0;    ///< texts that could not be taken
  Diagnostics diagnostics;    ///< why, and what else is worth a look, at its place in the imported file
};

/// Brings `translations`, which were read from `file`, into the table of their language of the project at
/// `root`. A text is refused whose key nothing looks up or stands twice in the file, or whose English has
/// changed since it was exported; with `force`, the latter is taken and marked for review. Texts without a
/// translation are left as they are. Nothing else in the table changes. Throws `CommandFailed`, having
/// changed nothing, when `check` finds an error in a text that was taken, for a language without a table,
/// when the table, the English one or the catalogue is wrong, and when the table cannot be written.
Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force);

}  // namespace zk::tools
