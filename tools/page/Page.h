#pragma once

#include <string>
#include <vector>

namespace zk::tools {

/// An HTML file that shows every text of the project at `root` in every language, finished by the engine with
/// example values. The file needs no other file and no network. No text in it is interpreted as markup or script.
/// Throws `CommandFailed` if the catalogue is wrong or the folder of English texts cannot be read.
/// The context of a text names the places that use it in the folders `sources`.
[[nodiscard]] std::string pageOf(const std::string& root, const std::vector<std::string>& sources = {});

/// The data of that page, as the JSON text that its script reads:
///
///     {"app": "My App",
///      "forms": [{"name": "few", "counts": "3 to 5", "example": 4}, …],
///      "entries": [{"key", "context", "counted", "formatted", "call"}, …],
///      "languages": [{"tag", "english", "native", "isRightToLeft", "file", "isWellFormed",
///                     "texts", "characters", "states", "previous", "findings"}, …]}
///
/// English is the first language. "texts", "characters" and "states" have an element for each key that the
/// engine looks up, in catalogue order: the finished text, whose values are marked as `ShownTexts` marks them; its
/// length in characters; one letter for missing (m), untranslated (u), needs review (n) or translated (t). An
/// element of "previous" is an array of the index of a key and the English text that its translation was made
/// from, if that has changed. A finding is an array of the index of its key (null for the table as a whole),
/// severity, rule, message, line and column.
///
/// Throws `CommandFailed` as `pageOf` does.
[[nodiscard]] std::string pageData(const std::string& root, const std::vector<std::string>& sources = {});

}  // namespace zk::tools
