#pragma once

#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>

#include <span>
#include <string_view>

namespace zk::tools {

/// The table of one language.
struct LanguageTable {
  std::string_view language;
  const Table& table;
  bool isDirectoryListable;  ///< the module skips a directory that it cannot list
};

/// The rules for a table by itself: its directory, its file, each entry without regard to its meaning.
[[nodiscard]] std::span<const RuleFor<LanguageTable>> tableRules();

/// The table of one language, beside the keys that the module looks up.
struct KeyedTable {
  std::string_view language;
  const Table& table;
  const EnglishTexts& english;
  const LanguageStyle& style;
};

/// The rules for the keys of a table, which are wrong and which the English one lacks, and for the plural forms of one key.
[[nodiscard]] std::span<const RuleFor<KeyedTable>> keyRules();

/// The rules for what is not translated yet, which is no fault. Of a table that is not well formed they say
/// nothing.
[[nodiscard]] std::span<const RuleFor<KeyedTable>> gapRules();

}  // namespace zk::tools
