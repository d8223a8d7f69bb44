#pragma once

#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The texts that the app looks up, each with its English text, its translation in the table of `language` ("de") of
/// the project at `root`, and notes for translators, in catalogue order. A text that is not translated has no target.
/// With `onlyOpen`, texts that are translated and need no review are left out. Notes name the places of use in
/// the folders `sources`. Throws `CommandFailed` for a language without a table, and if the table or the catalogue is wrong.
[[nodiscard]] Translations translationsOf(const std::string& root, const std::string& language, bool onlyOpen,
                                          const std::vector<std::string>& sources = {});

/// The translation in `entry` (null if the table has none), which has that state; empty if it is not translated.
[[nodiscard]] std::string_view translationIn(const TableEntry* entry, TranslationState state);

/// How the note starts that `versionNote` returns.
inline constexpr std::string_view kVersionNote = "Version in the table: ";

/// The note with a fingerprint of a translation and its state in the table. Exports have it, so that `import` finds
/// the texts that have changed in the table since.
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

/// Imports `translations`, which were read from `file`, into the table of their language of the project at `root`.
/// Refuses a text if nothing looks up its key, if the file has the key twice, or if the English text or the table's
/// translation has changed since the export. With `force`, the latter two are imported, and a translation of an older
/// English text is marked for review. A text without a translation changes nothing. Throws `CommandFailed`, having
/// changed nothing, if `check` finds an error in an imported text, for a language without a table, if the table or the
/// catalogue is wrong, and if the table cannot be written.
Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force);

}  // namespace zk::tools
