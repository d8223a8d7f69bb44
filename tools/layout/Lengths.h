#pragma once

#include <ZKStrings/tools/texts/TextSize.h>

#include <cstddef>
#include <string>
#include <vector>

namespace zk::tools {

/// A translation beside its English text, both filled in with example values as the app does.
struct Length {
  std::string language;
  std::string key;  ///< as it is looked up, with the plural form
  TextSize english;
  TextSize translation;

  /// How many times as wide as the English text it is, in columns; as nothing has a width, that counts as 1.
  [[nodiscard]] double times() const;
};

/// The translations into `languages`, all if there are none, of the project at `root`: the `limit` widest
/// beside English, the widest first. Throws `CommandFailed` when the catalogue is wrong, or there is no folder
/// of English texts.
[[nodiscard]] std::vector<Length> widestTranslations(const std::string& root,
                                                     const std::vector<std::string>& languages,
                                                     std::size_t limit);

/// A heading and one line for each, aligned.
[[nodiscard]] std::string formatted(const std::vector<Length>& lengths);

}  // namespace zk::tools
