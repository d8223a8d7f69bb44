#pragma once

#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// Returns the texts that the app looks up, in catalogue order, with their translations in the table of `language`
/// ("de") and notes for translators. A text that is not translated has no target. With `onlyOpen`, texts that are
/// translated and need no review are left out. Notes name the places of use in the folders `sources`. Throws
/// `CommandFailed` if the language has no table, or if the table or the catalogue is wrong.
[[nodiscard]] Translations translationsOf(const std::string& root, const std::string& language, bool onlyOpen,
                                          const std::vector<std::string>& sources = {});

/// Returns the translation in `entry`, which has that state and may be null; empty if it is not translated.
[[nodiscard]] std::string_view translationIn(const TableEntry* entry, TranslationState state);

/// How the note starts that `versionNote` returns.
inline constexpr std::string_view kVersionNote = "Version in the table: ";

/// The note with a fingerprint of a translation and its state. Imports use it to find texts that have changed in the table.
[[nodiscard]] std::string versionNote(std::string_view translation, TranslationState state);

/// The result of an import into a table.
struct Import {
  std::size_t added = 0;         ///< texts that the table did not have
  std::size_t changed = 0;       ///< texts, with or without their state
  std::size_t stateChanged = 0;  ///< entries of which only the state has changed
  std::size_t unchanged = 0;     ///< texts that the table had already
  std::size_t refused = 0;       ///< texts that were not imported
  Diagnostics diagnostics;       ///< at places in the imported file: warnings, and a note on each change
};

/// Imports `translations`, which were read from `file`, into the table of their language. Refuses a text if its key is
/// unknown or occurs twice, or if the English text or the table's translation has changed since the export. With
/// `force`, changed texts are imported, and translations of an older English text are marked for review. A text without
/// a translation changes nothing. Throws `CommandFailed`, and changes nothing, if `check` finds an error in an imported
/// text, if the language has no table, if the table, the catalogue or the glossary is wrong, or if the table cannot be
/// written.
Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force);

}  // namespace zk::tools
