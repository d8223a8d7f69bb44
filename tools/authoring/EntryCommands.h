#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <optional>
#include <string>

namespace zk::tools {

/// What to change about a text. What is not given stays.
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

/// Returns the key that `text` gets. Throws `std::invalid_argument`, with what is wrong, if it gets none.
std::string keyOf(const std::string& text);

// All these change all files that hold the text, or none. They throw `CommandFailed` if a file is wrong or cannot be
// written, and `std::invalid_argument`, with what is wrong and what to do, if the text or the key cannot be taken.

/// Adds the text to the project at `root`: to the catalogue, to the English table, and to the accessors. Returns its
/// key: that of `added`, or the one that the text gets. Of a counted text, `added` has the form for one at least; the
/// others may be the text itself. With `isPlain`, placeholders of other systems, as in "%s", are taken as text.
std::string addEntry(const std::string& root, const Entry& added, bool isPlain);

/// Changes the text of `key`. A plural form that was the old text becomes the new one. Translations of what has changed
/// are marked for review, unless the meaning is the same; returns their number. If a text gets a count, its translations
/// become the form for many.
std::size_t changeEntry(const std::string& root, const std::string& key, const EntryChange& change);

/// Gives the text of `key`, counted and plain, the key `newKey` in all tables.
void renameEntry(const std::string& root, const std::string& key, const std::string& newKey);

/// Removes the text of `key`, counted and plain, from the catalogue, from all tables and from the accessors.
void removeEntry(const std::string& root, const std::string& key);

}  // namespace zk::tools
