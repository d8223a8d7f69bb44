#pragma once

#include <ZKStrings/tools/support/Fault.h>

#include <cstddef>
#include <string>
#include <vector>

namespace zk::tools {

/// What of another app's texts has become part of a catalogue.
struct Adoption {
  std::size_t entries = 0;
  std::vector<std::string> languages;  ///< the names of their directories, "Base" first
  Faults remarks;                      ///< warnings: what was left out; notes: what the app must see to
};

/// Brings the texts of another app into the catalogue of the project at `root`: those of its English table
/// `file` ("en.lproj/Localizable.strings") as entries that keep their keys, and those of the tables of the
/// same name for other languages ("de.lproj/Localizable.strings" beside it). Plural forms, in tables and in
/// .stringsdict files, become the five of the catalogue; placeholders that go by their place get names, the
/// same in every language. What the catalogue has already stays as it is.
///
/// Throws `CommandFailed`, having written nothing, when `file` or the project cannot be read or written, or
/// when nothing in `file` can be brought along.
[[nodiscard]] Adoption adopt(const std::string& root, const std::string& file);

}  // namespace zk::tools
