#pragma once

#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>

#include <span>
#include <string_view>

namespace zk::tools {

/// The table of one language, and what it is compared with.
struct CheckedTable {
  std::string_view language;
  const Table& table;
  const EnglishTexts* english;  ///< null if the catalogue cannot be read
  const LanguageStyle& style;
  bool isDirectoryListable;  ///< the module skips a directory that it cannot list
};

/// The rules for a table as a whole: its directory, its file, its keys and what is not translated yet.
[[nodiscard]] std::span<const RuleFor<CheckedTable>> tableRules();

/// The rules for nouns after numbers. They take from the table itself which nouns fit which numbers, and need the
/// catalogue.
[[nodiscard]] std::span<const RuleFor<CheckedTable>> pluralRules();

}  // namespace zk::tools
