#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zk::tools {

/// How much of what the module looks up a language's table has. A text is there when its key is looked up and
/// the table has it with a text that is not empty.
struct Coverage {
  std::string language;
  std::size_t there = 0;
  std::size_t missing = 0;
  std::size_t missingPluralForms = 0;  ///< of those missing
  bool isWellFormed = true;            ///< the module reads nothing of a table that is not

  /// Rounded down, so that 100 means all.
  [[nodiscard]] std::size_t percent() const;
};

/// The coverage of each language that has a directory in the project at `root`, sorted by name. A table that
/// cannot be read has no text. Throws `CommandFailed` when the catalogue is wrong or resources/ cannot be
/// listed.
[[nodiscard]] std::vector<Coverage> coverageOf(const std::string& root);

/// One line for each language, aligned, with a bar.
[[nodiscard]] std::string formatted(const std::vector<Coverage>& languages);

/// A JSON array of objects with the members language, there, missing, missingPluralForms, percent and
/// wellFormed, one object a line.
[[nodiscard]] std::string toJson(const std::vector<Coverage>& languages);

}  // namespace zk::tools
