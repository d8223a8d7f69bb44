#pragma once

#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Languages.h>

#include <span>
#include <string_view>

namespace zk::tools {

/// One text of a table that is not blank, beside the English text that it says. In the English table itself,
/// that is the text of the catalogue.
struct Translation {
  std::string_view language;
  const TableEntry& entry;
  const EnglishText& english;
  const Glossary& glossary;
};

/// The rules for the placeholders of a text.
[[nodiscard]] std::span<const RuleFor<Translation>> placeholderRules();

/// The rules for marks, outer white space, end punctuation and numbers.
[[nodiscard]] std::span<const RuleFor<Translation>> textRules();

/// The rules for the words that translators have settled on. They do not regard the English table.
[[nodiscard]] std::span<const RuleFor<Translation>> glossaryRules();

/// The rules for words that stand twice, in another language or in letters of two scripts.
[[nodiscard]] std::span<const RuleFor<Translation>> wordRules();

/// The rules for the typography of the language.
[[nodiscard]] std::span<const RuleFor<Translation>> typographyRules();

/// The rules for what may be right, but is worth a look. They do not regard the English table.
[[nodiscard]] std::span<const RuleFor<Translation>> noteRules();

/// `find` for translations alone: that the English table says the same as the catalogue is no news.
template <void (*find)(const Translation&, Findings&)>
void inTranslations(const Translation& translation, Findings& findings) {
  if (translation.language != kBase) find(translation, findings);
}

/// `find` for what has been translated: in an entry that still says what the English text says, words and
/// typography are English.
template <void (*find)(const Translation&, Findings&)>
void inTranslated(const Translation& translation, Findings& findings) {
  const bool isTranslated = translation.entry.text != translation.english.text;
  if (translation.language != kBase && isTranslated) find(translation, findings);
}

}  // namespace zk::tools
