#pragma once

#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>

#include <span>
#include <string_view>

namespace zk::tools {

/// A text of a table that is not blank, and the English text of the same key. For an entry of the English table, that
/// is the text of the catalogue.
struct Translation {
  std::string_view language;
  const TableEntry& entry;
  const EnglishText& english;
  const Glossary& glossary;
};

/// The rules that compare a text with the English one: placeholders, marks, white space, punctuation, numbers, length.
[[nodiscard]] std::span<const RuleFor<Translation>> textRules();

}  // namespace zk::tools
