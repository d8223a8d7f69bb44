#pragma once

#include <ZKStrings/tools/EnglishTexts.h>
#include <ZKStrings/tools/Table.h>
#include <ZKStrings/tools/check/Rule.h>

#include <span>
#include <string_view>

namespace zk::tools {

/// One text of a table that is not blank, beside the English text that it says. In the English table itself,
/// that is the text of the catalogue.
struct Translation {
  std::string_view language;
  const TableEntry& entry;
  const EnglishText& english;
};

/// The rules for the placeholders of a text.
[[nodiscard]] std::span<const RuleFor<Translation>> placeholderRules();

/// The rules for marks, white space and punctuation.
[[nodiscard]] std::span<const RuleFor<Translation>> textRules();

/// The rules for what may be right, but is worth a look. They do not regard the English table.
[[nodiscard]] std::span<const RuleFor<Translation>> noteRules();

}  // namespace zk::tools
