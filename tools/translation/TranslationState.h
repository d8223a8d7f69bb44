#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// The progress of the translation of one text.
enum class TranslationState {
  missing,       ///< the table has no entry for it
  untranslated,  ///< the entry is empty or still in English
  needsReview,   ///< the English text has changed since it was translated
  translated,
};

/// "missing", "untranslated", "needs-review", "translated".
[[nodiscard]] std::string_view nameOf(TranslationState state);

/// Returns the state of the text `english` in the table of `language`, whose entry is `entry` (null if there is none).
///
/// It is `needsReview` if a comment before the entry says so, or records another English text. It is `untranslated` if
/// the text equals the English one, and either a comment says so or the text has two words or more that are not all
/// names, unless a comment switches the rule `kUntranslatedRule` off. English texts are missing or translated.
[[nodiscard]] TranslationState stateOf(std::string_view language, const TableEntry* entry,
                                       const EnglishText& english);

/// The rule of `check` that counts untranslated texts.
inline constexpr std::string_view kUntranslatedRule = "untranslated";

/// Whether a comment before the entry marks it as `state`: `/* state: needs-review */`.
[[nodiscard]] bool isMarked(const TableEntry& entry, TranslationState state);

/// The comment that marks an entry as `untranslated` or `needsReview`, with the previous English text unless empty:
/// `/* state: needs-review; was "Accept it" */`.
[[nodiscard]] std::string markFor(TranslationState state, std::string_view previousEnglish = "");

}  // namespace zk::tools
