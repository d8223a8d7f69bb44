#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>

namespace zk::tools {

/// What an update has done to a table.
struct TableUpdate {
  std::size_t added = 0;     ///< texts, in English
  std::size_t marked = 0;    ///< entries, as untranslated
  std::size_t unmarked = 0;  ///< entries that are no longer
  std::size_t removed = 0;   ///< entries that nothing looks up
  Diagnostics notLookedUp;   ///< the entries that nothing looks up and that are still there

  [[nodiscard]] bool isChange() const { return added + marked + unmarked + removed > 0; }
};

/// Brings the table of `language` of the project at `root` up to date: adds what is missing, each text at its
/// place in the catalogue's order, and marks what is still in English as untranslated, and nothing else.
/// Removes the entries that nothing looks up when `prunes`. All else stays as it is. Throws `CommandFailed`,
/// having changed nothing, when the language has no table, when the table, the English one or the catalogue
/// is wrong, or when the file cannot be written.
TableUpdate updateTable(const std::string& root, const std::string& language, bool prunes);

}  // namespace zk::tools
