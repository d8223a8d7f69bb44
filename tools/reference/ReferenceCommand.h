#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zk::tools {

/// The first word of the command lines that ask the command about itself. No help names it: the manual page
/// and the shells' completion are made with it.
inline constexpr const char* kReference = "reference";

/// Prints what the words behind `kReference` ask for, and gives the exit status:
///
///     man                  the manual page
///     complete WORD...     what the last word of the command line WORD... may become: each candidate on a line, with an
///                          explanation behind a tab where it has one, or ":files" for the names of files
int printReference(const CLI::App& app, const std::vector<std::string>& words);

}  // namespace zk::tools
