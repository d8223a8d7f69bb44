#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

#include <string>
#include <vector>

namespace zk {

/// The direction in which a language is written: left to right or right to left.
enum class TextDirection { ltr, rtl };

/// A language that an app has texts in.
struct TextLanguage {
  std::string code;  ///< The first two characters of its identifiers, such as "de"; "en" for Base.lproj.
  TextDirection direction;  ///< The direction of its texts.
};

/// Returns the languages that have texts, sorted by code, for a language picker:
///
///     for (const zk::TextLanguage& language : zk::availableLanguages()) picker.add(language.code);
///     ...
///     zk::Current::language->preferredLanguages = {picker.selected()};
///
/// Returns an empty list while the resources temporarily cannot be found. Thread-safe. Throws std::bad_alloc if memory
/// runs out.
[[nodiscard]] ZK_EXPORT std::vector<TextLanguage> availableLanguages();

/// Returns the languages of a catalogue whose resources are in `resources`. Returns an empty list if `resources` is
/// null. Thread-safe.
[[nodiscard]] ZK_EXPORT std::vector<TextLanguage> availableLanguages(const Bundle* resources);

/// Returns the language of the texts: the first preferred language of `Current::language` that is available, or English.
///
///     window.setMirrored(zk::chosenLanguage().direction == zk::TextDirection::rtl);
///
/// Returns English while the resources temporarily cannot be opened. Thread-safe. Throws std::bad_alloc if memory runs
/// out. Stops the process if `Current::language` has not been assigned, or if Base.lproj is needed but missing.
[[nodiscard]] ZK_EXPORT TextLanguage chosenLanguage();

/// Returns the chosen language of a catalogue whose resources are in `resources`. Returns English if `resources` is
/// null. Thread-safe.
[[nodiscard]] ZK_EXPORT TextLanguage chosenLanguage(const Bundle* resources);

}  // namespace zk
