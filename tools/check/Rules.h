#pragma once

#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// The rules for nouns after numbers. They learn from the table itself which nouns fit which numbers.
[[nodiscard]] std::span<const RuleFor<CheckedTable>> pluralRules();

/// A text of a table that is not blank, and the text of the same key in the catalogue.
struct Translation {
  std::string_view language;
  const TableEntry& entry;
  const EnglishText& english;
  const Glossary& glossary;
};

/// The rules that compare a text with the English one: placeholders, marks, white space, punctuation, numbers, length.
[[nodiscard]] std::span<const RuleFor<Translation>> textRules();

/// The rules for the language of a text: the glossary's terms, words and typography.
[[nodiscard]] std::span<const RuleFor<Translation>> languageRules();

/// The readable part of the country list.
struct CountryFile {
  static constexpr const char* kFile = "resources/countries.json";

  struct Element {
    Position at;
    Value value;
  };
  std::vector<Element> elements;
  std::optional<Finding> error;  ///< why the file is not an array of countries

  /// Returns whether the project at `root` should have a list: the module must, other catalogues may.
  [[nodiscard]] static bool isExpected(const std::string& root, bool isModule);
  /// Reads the list of the project at `root`.
  [[nodiscard]] static CountryFile read(const std::string& root);
};

[[nodiscard]] std::span<const RuleFor<CountryFile>> countryRules();

}  // namespace zk::tools
