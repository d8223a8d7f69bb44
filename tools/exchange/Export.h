#pragma once

#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>

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

}  // namespace zk::tools
