#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// One entry of a string table, with the places in its file that diagnostics are reported for.
struct TableEntry {
  /// The bytes [begin, end) of the table's text in UTF-8, without a byte-order mark.
  struct Span {
    std::size_t begin;
    std::size_t end;
  };
  /// An escape without a meaning, as in "\q".
  struct UnknownEscape {
    Position at;
    std::string spelled;
  };
  struct Comment {
    std::string text;  ///< without its marks
    Span span;         ///< with them
    Position at;
  };

  std::string key;
  std::string text;
  std::string spelled;  ///< the text as it is in the file, with its escapes
  Span span;            ///< from the key to the semicolon
  Span keySpan;         ///< of the key, with its quotes
  Span spelledSpan;     ///< of the text, with its quotes
  Position keyAt;
  Position textAt;                ///< of the first character within the quotes
  std::size_t lastLine;           ///< the line on which the entry ends
  std::vector<Comment> comments;  ///< the comments before the entry, see `endOfLine`
  std::vector<UnknownEscape> unknownEscapes;
};

/// A string table with all entries that can be read, and with its syntax errors under the rules named here.
struct Table {
  static constexpr char kMissing[] = "missing-table";
  static constexpr char kEncoding[] = "encoding";
  static constexpr char kSyntax[] = "table-syntax";

  std::string file;  ///< relative to the project's root
  std::vector<TableEntry> entries;
  Diagnostics diagnostics;
  std::map<std::string, std::size_t, std::less<>> places;  ///< by key, of the entry that counts

  /// Reads the table of `language` ("Base", "de") of the project at `root`. An unreadable file is one of the diagnostics.
  [[nodiscard]] static Table read(const std::string& root, std::string_view language);
  /// Reads the table and throws `CommandFailed` if it has diagnostics.
  [[nodiscard]] static Table readWellFormed(const std::string& root, std::string_view language);
  /// Reads a table from the bytes of its file.
  [[nodiscard]] static Table parse(std::string bytes, std::string file);

  /// Returns the last entry of `key`, which is the one that counts; null if there is none.
  [[nodiscard]] const TableEntry* find(std::string_view key) const;
  /// Returns the entry at `position`, or the next one if there is none, such as in the comments before it; null at the end.
  [[nodiscard]] const TableEntry* entryAt(Position position) const;
};

/// Finds the places in the file of the characters of an entry's text, and reads the text only once.
class TextPlaces {
 public:
  /// `entry` must outlive the places.
  explicit TextPlaces(const TableEntry& entry);
  /// The place of the character at the byte `offset` of the text; of the text's end for an offset beyond it.
  /// Offsets must be queried in rising order.
  [[nodiscard]] Position at(std::size_t offset);

 private:
  void readOn();

  std::string_view spelled_;
  PositionFinder positions_;
  TableEntry::Span piece_ = {0, 0};  // of `spelled_`: an escape at most, and what follows it up to the next
  TableEntry::Span text_ = {0, 0};   // the part of the text that the piece spells
};

/// Returns where the last line of `entry` in the table's `text` ends, with its line break. Comments on the rest of the
/// line belong to `entry`. If another entry follows on the line, returns the end of `entry`.
[[nodiscard]] std::size_t endOfLine(std::string_view text, const TableEntry& entry);

/// The path of a language's table below the project's root: "resources/de.lproj/Localizable.strings".
[[nodiscard]] std::string tablePath(std::string_view language);

/// `text` as it is written between quotes in string tables and C++, with the escapes \" \\ \n \t.
[[nodiscard]] std::string escaped(std::string_view text);

/// `text` as it is written between quotes in C++ and PO: `escaped`, and with octal escapes for control characters.
[[nodiscard]] std::string literal(std::string_view text);

/// A table's line for one entry, with its line break.
[[nodiscard]] std::string tableLine(std::string_view key, std::string_view text);

}  // namespace zk::tools
