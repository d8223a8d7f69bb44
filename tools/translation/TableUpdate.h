#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <cstddef>
#include <functional>
#include <set>
#include <string>

namespace zk::tools {

/// Writes the table for a new language into the project at `root`, and returns the number of its texts: it has every key
/// that the module looks up, in catalogue order, with the English text. Throws `CommandFailed`, and writes nothing, if the
/// language has a table already, or if the catalogue is wrong; `std::invalid_argument` if the module would never choose the
/// language, or if `language` is empty.
std::size_t writeTemplate(const std::string& root, const std::string& language);

/// Marks the entries of a translation for review whose English text is not the one that they were made from: the one
/// recorded before the entry, or else the one of `base`, the English table as it was until now. Entries that are still
/// in English get the new text, and comments with the English text and the context are kept up to date. Nothing is
/// marked if the change `keepsMeaning`; the keys `reviewed` are marked in any case. Returns the number of
/// entries that it has marked.
std::size_t markChanged(TableEditor& editor, const EnglishTexts& english, const Table& base,
                        bool keepsMeaning = false, const std::set<std::string, std::less<>>& reviewed = {});

/// The changes that an update has made to a table.
struct TableUpdate {
  std::size_t added = 0;     ///< texts, in English
  std::size_t marked = 0;    ///< entries, as untranslated
  std::size_t unmarked = 0;  ///< entries that are translated now
  std::size_t reviews = 0;   ///< entries marked for review, as their English text has changed
  std::size_t removed = 0;   ///< entries that nothing looks up
  bool isChange = false;     ///< whether anything has changed, even if only comments
  Diagnostics notLookedUp;   ///< the entries that nothing looks up and that are still there
};

/// Updates the table of `language` in the project at `root`: adds the missing texts in the catalogue's order,
/// marks texts that are still in English as untranslated and those whose English has changed for review, and refreshes
/// the comments with the English text and the context. Removes the entries that nothing looks up if `prunes`. Everything
/// else stays as it is. Throws `CommandFailed`, and changes nothing, if the language has no table, if the table, the
/// English table or the catalogue is wrong, or if the file cannot be written.
TableUpdate updateTable(const std::string& root, const std::string& language, bool prunes);

}  // namespace zk::tools
