#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Position.h>

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
  /// An escape that stands for no special character, as in "\q".
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
  std::string spelled;  ///< the text as it stands in the file, with its escapes
  Span span;            ///< from the key to the semicolon
  Span keySpan;         ///< of the key, with its quotes
  Span spelledSpan;     ///< of the text, with its quotes
  Position keyAt;
  Position textAt;                ///< of the first character within the quotes
  std::size_t lastLine;           ///< the line on which the entry ends
  std::vector<Comment> comments;  ///< those before the entry, see `endOfLine`
  std::vector<UnknownEscape> unknownEscapes;
};

/// Tells where in the file the characters of an entry's text stand, and reads the text only once.
class TextPlaces {
 public:
  /// `entry` must outlive the places.
  explicit TextPlaces(const TableEntry& entry);
  /// The place of the character at the byte `offset` of the text; of the text's end for an offset beyond it.
  /// Offsets are asked for in rising order.
  [[nodiscard]] Position at(std::size_t offset);

 private:
  void readOn();

  std::string_view spelled_;
  PositionFinder positions_;
  TableEntry::Span piece_ = {0, 0};  // of `spelled_`: an escape at most, and what follows it up to the next
  TableEntry::Span text_ = {0, 0};   // what the piece stands for
};

/// A string table as the tools see it: all entries that can be read, and all that keeps the file from being a
/// table, under the rules named here.
struct Table {
  static constexpr char kMissing[] = "missing-table";
  static constexpr char kEncoding[] = "encoding";
  static constexpr char kSyntax[] = "table-syntax";

  std::string file;  ///< relative to the project's root
  std::vector<TableEntry> entries;
  Diagnostics diagnostics;
  std::map<std::string, std::size_t, std::less<>> places;  ///< by key, of the entry that counts

  /// Reads the table of `language` ("Base", "de") of the project at `root`. A file that cannot be read is a
  /// fault too.
  [[nodiscard]] static Table read(const std::string& root, std::string_view language);
  /// The same for those who cannot go on with a faulty table: throws its diagnostics as `CommandFailed`.
  [[nodiscard]] static Table readWellFormed(const std::string& root, std::string_view language);
  /// The same of the bytes of such a file.
  [[nodiscard]] static Table parse(std::string bytes, std::string file);

  /// The entry of `key` that counts, the last; null when there is none.
  [[nodiscard]] const TableEntry* find(std::string_view key) const;
  /// The entry at `position`, or the next one when `position` is between entries, such as in the comments before
  /// an entry; null after the last entry.
  [[nodiscard]] const TableEntry* entryAt(Position position) const;
};

/// Where the line of `text`, a table's, ends on which `entry` ends, with its line break. Comments that follow
/// on the line belong to it, and to no entry behind. When another entry follows on the line, it is the end of
/// `entry`.
[[nodiscard]] std::size_t endOfLine(std::string_view text, const TableEntry& entry);

/// The path of a language's table below the project's root: "resources/de.lproj/Localizable.strings".
[[nodiscard]] std::string tablePath(std::string_view language);

/// `text` with the characters that cannot stand between quotes as they are escaped: \" \\ \n \t. Serves for
/// string tables and for C++ alike.
[[nodiscard]] std::string escaped(std::string_view text);

/// A table's line for one entry, with its line break.
[[nodiscard]] std::string tableLine(std::string_view key, std::string_view text);

}  // namespace zk::tools
