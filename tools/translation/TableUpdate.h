#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <cstddef>
#include <functional>
#include <set>
#include <string>

namespace zk::tools {

/// Writes the table for a new language, with the English text of every key in catalogue order. Returns the number of
/// texts. Throws `CommandFailed`, and writes nothing, if the table already exists or the catalogue is wrong;
/// `std::invalid_argument` if the module would never choose the language, or if `language` is empty.
std::size_t writeTemplate(const std::string& root, const std::string& language);

/// Marks translations for review if their English text has changed: it differs from the one recorded before the entry,
/// or else from the one in `base`, the previous English table. Entries that are still in English get the new text, and
/// comments with the English text and the context are updated. If the change `keepsMeaning`, only the keys `reviewed`
/// are marked. Returns the number of marked entries.
std::size_t markChanged(TableEditor& editor, const EnglishTexts& english, const Table& base,
                        bool keepsMeaning = false, const std::set<std::string, std::less<>>& reviewed = {});

/// The changes that an update has made to a table.
struct TableUpdate {
  std::size_t added = 0;     ///< texts, in English
  std::size_t marked = 0;    ///< entries, as untranslated
  std::size_t unmarked = 0;  ///< entries that are translated now
  std::size_t reviews = 0;   ///< entries marked for review, as their English text has changed
  std::size_t removed = 0;   ///< entries with unknown keys
  bool isChange = false;     ///< whether anything has changed, even if only comments
  Diagnostics unknownKeys;   ///< one for each entry with an unknown key that was not removed
};

/// Updates the table of `language`: adds the missing texts in catalogue order, marks texts that are still in English as
/// untranslated and those whose English text has changed for review, and updates the comments with the English text and
/// the context. If `prunes`, removes entries with unknown keys. Throws `CommandFailed`, and changes nothing, if the
/// language has no table, if a table or the catalogue is wrong, or if the file cannot be written.
TableUpdate updateTable(const std::string& root, const std::string& language, bool prunes);

}  // namespace zk::tools
