#pragma once

#include <string>

namespace zk::tools {

/// All that the page shows of the project at `root`, as the JSON text that its script reads:
///
///     {"counts": [0, 1, 2, 4, 11],
///      "entries": [{"key", "text", "counted", "call", "values": [["username", "kim"], …]}, …],
///      "languages": [{"tag", "english", "native", "isRightToLeft", "file", "isWellFormed",
///                     "texts", "finished", "characters", "states", "findings"}, …]}
///
/// English is the first language. Its arrays have an element for each key that the module looks up, in
/// catalogue order: the text as the engine finds it; the same filled in with the example values, 0 when that
/// changes nothing; its length in characters; one letter, m, u, r or t, for missing, untranslated, needs
/// review and translated. A finding is an array of the index of such a key (null for the table as a whole),
/// severity, rule, message, line and column. The value of a placeholder is null for the count, and an array
/// with one for each language where they differ.
///
/// Throws `CommandFailed` when the catalogue is wrong, or there is no folder of English texts.
[[nodiscard]] std::string pageData(const std::string& root);

}  // namespace zk::tools
