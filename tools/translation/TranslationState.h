#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
/// names, unless a comment turns the rule `kUntranslatedRule` off. English texts are missing or translated.
[[nodiscard]] TranslationState stateOf(std::string_view language, const TableEntry* entry,
                                       const EnglishText& english);

/// The rule of `check` that counts untranslated texts.
inline constexpr std::string_view kUntranslatedRule = "untranslated";

// Comments before an entry can have a meaning for the tools. They begin with a word and a colon:
//
//     /* English: "%{n} Coins"; placeholders: %{n} */
//     /* context: A button that opens the settings. At most 14 characters. */
//     /* state: needs-review; was "%{n} Tokens" */
//     /* check: off end-punctuation, marks */

inline constexpr std::string_view kExplanation = "English:";
inline constexpr std::string_view kContext = "context:";
inline constexpr std::string_view kState = "state:";
inline constexpr std::string_view kCheck = "check:";

/// Returns the words after `name` in `comment`, split at spaces, commas and semicolons; nothing if it begins differently.
[[nodiscard]] std::optional<std::vector<std::string_view>> wordsAfter(const TableEntry::Comment& comment,
                                                                      std::string_view name);

/// Returns the quoted text in the comment before `entry` that begins with `name`: for `kExplanation`, the English text
/// that the translation was made from; for `kState`, the previous English text. Nothing if there is none.
[[nodiscard]] std::optional<std::string> quotedIn(const TableEntry& entry, std::string_view name);

/// Whether the comments before `entry` turn `rule` off.
[[nodiscard]] bool isTurnedOff(const TableEntry& entry, std::string_view rule);

/// Whether a comment before the entry marks it as `state`.
[[nodiscard]] bool isMarked(const TableEntry& entry, TranslationState state);

/// The comment that marks an entry as `untranslated` or `needsReview`, with the previous English text unless empty.
[[nodiscard]] std::string markFor(TranslationState state, std::string_view previousEnglish = "");

/// The comment that shows translators the English text and its placeholders.
[[nodiscard]] std::string explanationOf(const EnglishText& english);

/// The comment with the context of a text. Empty if it has none.
[[nodiscard]] std::string contextOf(const EnglishText& english);

}  // namespace zk::tools
