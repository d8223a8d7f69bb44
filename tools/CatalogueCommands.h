#pragma once

#include <string>

namespace zk::tools {

/// Makes catalogue/ZKStrings.h and .cpp of the project at `root` anew. Throws `CommandFailed` when the
/// catalogue or the English table is wrong.
void generate(const std::string& root);

/// Adds an entry with the English text `text` to the project at `root`: to the catalogue at its place, to the
/// English table (all five plural forms with the same text when it is counted), and to the accessors. Gives
/// the entry's key. Throws `CommandFailed`, having changed nothing, when the text is empty, gets no key, or
/// the accessor exists.
std::string addEntry(const std::string& root, const std::string& text, bool plural);

}  // namespace zk::tools
