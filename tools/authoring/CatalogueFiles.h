#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>

namespace zk::tools {

/// The changes that a command makes to the tables, in addition to updating them from the catalogue.
struct TableChange {
  /// New keys by old ones; an empty new key removes the entry.
  std::map<std::string, std::string> renamed = {};
  /// "%{value}" and what replaces it in the entries of `renamed`.
  std::string oldPlaceholder = {};
  std::string newPlaceholder = {};
  /// Keys whose translations need review although the English table has the same text.
  std::set<std::string, std::less<>> reviewed = {};
  /// Whether translations of a changed text are still right.
  bool keepsMeaning = false;
  /// Whether translations get the order of the catalogue, without repeated entries.
  bool sorts = false;
  /// Whether accessors are written even if the project does not keep them yet.
  bool generates = false;
};

/// Writes the catalogue of the project at `root` and all files that depend on it, or none of them: updates the English table,
/// marks translations of changed texts for review, and generates the accessors if the project keeps them. Returns the number of
/// translations that need review now. Throws `CommandFailed` if one of the files breaks a rule or cannot be written.
std::size_t writeCatalogue(const std::string& root, const Catalogue& catalogue,
                           const TableChange& change = {});

/// Like `writeCatalogue`, but for a catalogue that was edited or merged by hand: also sorts it and all tables. Throws
/// `CommandFailed` with the conflicts that remain, such as a key with two texts.
std::size_t generate(const std::string& root);

/// Writes only the accessors, into the directory `output`, for a build that keeps them there. Throws `CommandFailed`,
/// with files named from `root`, if the catalogue is wrong or the English table differs from it.
void generateInto(const std::string& output, const std::string& root);

/// Writes a new catalogue of two texts to `directory`, which is created if needed, with the English table, the settings
/// and a README. Throws `CommandFailed`, and writes nothing, if there is a catalogue already or a file cannot be
/// written; `std::invalid_argument` if `name` is not valid.
void initCatalogue(const std::string& directory, const CatalogueName& name);

}  // namespace zk::tools
