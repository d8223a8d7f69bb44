#pragma once

#include <ZKStrings/tools/Fault.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// One entry of a string table, with the places in its file that faults are reported for.
struct TableEntry {
  /// An escape that stands for no special character, as in "\q".
  struct UnknownEscape {
    Position at;
    std::string spelled;
  };

  std::string key;
  std::string text;
  std::string spelled;  ///< the text as it stands in the file, with its escapes
  Position keyAt;
  Position textAt;                    ///< of the first character within the quotes
  std::size_t lastLine;               ///< the line on which the entry ends
  std::vector<std::string> comments;  ///< the comments before the entry, without their marks
  std::vector<UnknownEscape> unknownEscapes;

  /// Where in the file the character at the byte `offset` of `text` stands; the end of the text for an offset
  /// beyond it.
  [[nodiscard]] Position placeOf(std::size_t offset) const;
};

/// A string table as the tools see it: all entries that can be read, and all that keeps the file from being a
/// table, under the rules named here.
struct Table {
  static constexpr char kMissing[] = "missing-table";
  static constexpr char kEncoding[] = "encoding";
  static constexpr char kSyntax[] = "table-syntax";

  std::string file;  ///< relative to the project's root
  std::vector<TableEntry> entries;
  Faults faults;

  /// Reads the table of `language` ("Base", "de") of the project at `root`. A file that cannot be read is a
  /// fault too.
  [[nodiscard]] static Table read(const std::string& root, std::string_view language);
  /// The same of the bytes of such a file.
  [[nodiscard]] static Table parse(std::string bytes, std::string file);

  /// The entry of `key` that counts, the last; null when there is none.
  [[nodiscard]] const TableEntry* find(std::string_view key) const;
};

/// The path of a language's table below the project's root: "resources/de.lproj/Localizable.strings".
[[nodiscard]] std::string tablePath(std::string_view language);

/// `text` with the characters that cannot stand between quotes as they are escaped: \" \\ \n \t. Serves for
/// string tables and for C++ alike.
[[nodiscard]] std::string escaped(std::string_view text);

/// A table's line for one entry, with its line break.
[[nodiscard]] std::string tableLine(std::string_view key, std::string_view text);

}  // namespace zk::tools
