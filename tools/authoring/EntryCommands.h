#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <optional>
#include <string>

namespace zk::tools {

/// The changes to a text. Fields that are not set leave it unchanged.
struct EntryChange {
  std::optional<std::string> text = {};
  PluralForms forms = {};
  bool plural = false;  ///< whether a text without a count gets one
  std::optional<std::string> comment = {};
  std::optional<std::size_t> max = {};
  std::string placeholder = {};  ///< "value=player" renames "%{value}"
  bool keepsMeaning = false;     ///< whether translations are still right
  bool isPlain = false;          ///< as in `addEntry`
};

/// Returns the key derived from `text`. Throws `std::invalid_argument`, with what is wrong, if there is none.
std::string keyOf(const std::string& text);

// These functions change all files that contain the text, or none. They throw `CommandFailed` if a file is wrong or
// cannot be written, and `std::invalid_argument` if the text or the key is not valid.

/// Adds a text to the catalogue, the English table and the accessors. Returns its key, which is derived from the text if `added`
/// has none. A counted text needs at least the form for one. With `isPlain`, "%s" and the like are plain text.
std::string addEntry(const std::string& root, const Entry& added, bool isPlain);

/// Changes the text of `key`, and its plural forms that were the same. Marks translations of changed texts for review, unless the
/// meaning is the same, and returns their number. If a text gets a count, its translations become the form for many.
std::size_t changeEntry(const std::string& root, const std::string& key, const EntryChange& change);

/// Changes the key of the text `key`, counted and plain, to `newKey` in all tables.
void renameEntry(const std::string& root, const std::string& key, const std::string& newKey);

/// Removes the text of `key`, counted and plain, from the catalogue, from all tables and from the accessors.
void removeEntry(const std::string& root, const std::string& key);

}  // namespace zk::tools
