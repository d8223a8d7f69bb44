#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>

namespace zk::tools {

/// The English plural forms of a text that are given, in the order of `kPluralForms`.
using PluralForms = std::array<std::optional<std::string>, std::size(kPluralForms)>;

/// A text to be added.
struct NewEntry {
  std::string text;  ///< the English default
  bool plural = false;
  /// With a count: the form for one at least; others that are not given are the text itself.
  PluralForms forms = {};
  std::string key = {};  ///< empty for the key that the text gets
};

/// The key that `text` gets. Throws `std::invalid_argument`, with what is wrong, when it gets none.
std::string keyOf(const std::string& text);

// All these change all files that hold the text, or none. They throw `CommandFailed` when a file is wrong
// or cannot be written, and `std::invalid_argument`, with what is wrong and what to do, when the text or the
// key cannot be taken.

/// Adds the text to the project at `root`: to the catalogue at its place, to the English table, and to the
/// accessors. Gives its key.
std::string addEntry(const std::string& root, const NewEntry& added);

/// Gives the text of `key` another English text and, where it is counted, the given plural forms; a form that
/// was the old text becomes the new one. Marks its translations as to be reviewed, and gives their number.
std::size_t changeEntry(const std::string& root, const std::string& key, const std::string& text,
                        const PluralForms& forms);

/// Removes the text of `key`, counted and plain, from the catalogue, from all tables and from the accessors.
void removeEntry(const std::string& root, const std::string& key);

}  // namespace zk::tools
