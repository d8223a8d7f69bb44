#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Files.h>

#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace zk::tools {

/// The English plural forms of a text, in the order of `kPluralSuffixes`, as far as they are given.
using PluralForms = std::array<std::optional<std::string>, std::size(kPluralSuffixes)>;

/// A text to be added.
struct NewEntry {
  std::string text;  ///< the English default
  bool plural = false;
  /// With a count: the form for one at least; others that are not given are the text itself.
  PluralForms forms = {};
  std::string key = {};  ///< empty for the key that the text gets
};

/// Makes the accessors of the project at `root` anew, in its folder catalogue/. Throws `CommandFailed` when
/// the catalogue or the English table is wrong.
void generate(const std::string& root);

/// The same, in the directory `output`, for a build that keeps them there. The faults that it throws name
/// their files with `root`, so that they are found from the build's folder.
void generateInto(const std::string& output, const std::string& root);

// The following change all files that hold the text, or none. They throw `CommandFailed` when a file is wrong
// or cannot be written, and `std::invalid_argument`, with what is wrong and what to do, when the text or the
// key cannot be taken.

/// Adds the text to the project at `root`: to the catalogue at its place, to the English table, and to the
/// accessors. Gives its key.
std::string addEntry(const std::string& root, const NewEntry& added);

/// Gives the text of `key` another English text and, where it is counted, the given plural forms; a form that
/// was the old text becomes the new one. Marks its translations as to be reviewed, and gives their number.
std::size_t changeEntry(const std::string& root, const std::string& key, const std::string& text,
                        const PluralForms& forms);

/// Writes the catalogue and what changes with it: the English table, whose bytes are `base`, `translations`,
/// and the accessors, where the project keeps them.
void writeCatalogue(const std::string& root, const Catalogue& catalogue, const std::string& base,
                    std::vector<FileChange> translations = {});

/// Removes the text of `key`, counted and plain, from the catalogue, from all tables and from the accessors.
void removeEntry(const std::string& root, const std::string& key);

}  // namespace zk::tools
