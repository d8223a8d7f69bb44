#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>

namespace zk::tools {

/// What a command does to the tables, besides bringing them in line with the catalogue.
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

/// Reads the catalogue of the project at `root`, with all plural forms, to change it. Throws `CommandFailed` if the
/// catalogue or the English table is wrong.
[[nodiscard]] Catalogue readToChange(const std::string& root);

/// Writes the catalogue of the project at `root` and brings the rest in line with it, all files or none: the English
/// table says what the catalogue says, translations of texts that have changed are marked for review, and the accessors
/// are generated where the project keeps them. Returns the number of translations that need review now. Throws
/// `CommandFailed` if one of the files breaks a rule or cannot be written.
std::size_t writeCatalogue(const std::string& root, const Catalogue& catalogue,
                           const TableChange& change = {});

/// Does so for the catalogue as a person or a merge of two versions left it, and puts it and all tables in order.
/// Throws `CommandFailed` with what it cannot decide, such as one key with two texts.
std::size_t generate(const std::string& root);

/// Writes only the accessors, into the directory `output`, for a build that keeps them there. Throws `CommandFailed`,
/// with files named from `root`, if the catalogue is wrong or the English table does not say what it says.
void generateInto(const std::string& output, const std::string& root);

}  // namespace zk::tools
