#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace zk::tools {

/// How many texts that the module looks up are translated in a language's table.
struct Coverage {
  std::string language;
  std::array<std::size_t, 4> counts = {};  ///< by `TranslationState`
  bool isWellFormed = true;  ///< if not, the module reads nothing of the table, so all texts are missing

  /// The percentage of translated texts, rounded down, so 100 means all.
  [[nodiscard]] std::size_t percent() const;
};

/// Returns the coverage of each language that has a directory in the project at `root`, sorted by name. A table that
/// cannot be read has no texts. Throws `CommandFailed` if the catalogue is wrong or resources/ cannot be listed.
[[nodiscard]] std::vector<Coverage> coverageOf(const std::string& root);

/// A heading and one line for each language, aligned, with a bar, within 80 columns.
[[nodiscard]] std::string formatted(const std::vector<Coverage>& languages);

/// A JSON array of objects: language, translated, needsReview, untranslated, missing, percent, wellFormed.
[[nodiscard]] std::string toJson(const std::vector<Coverage>& languages);

}  // namespace zk::tools
