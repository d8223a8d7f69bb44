#pragma once

#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zk::tools {

/// Edits the text of a string table, and leaves comments, order, blanks, line ends and all else as they are,
/// byte for byte. Edits are collected and made at once:
///
///     TableEditor editor = TableEditor::open(root, "de");
///     if (const TableEntry* const about = editor.table().find("About")) editor.replaceText(*about, "Info");
///     if (editor.hasEdits()) writeFile(root, editor.table().file, editor.edited());
///
/// Entries are those of `table()`. Of edits of one entry, those count that do not touch what another one has
/// replaced or removed.
class TableEditor {
 public:
  /// For the table of `language` of the project at `root`. Throws `CommandFailed` when it cannot be read, is
  /// not well formed, or is not UTF-8.
  [[nodiscard]] static TableEditor open(const std::string& root, std::string_view language);
  /// The same for the bytes of such a file.
  TableEditor(std::string bytes, const std::string& file);
  TableEditor(const TableEditor&) = delete;
  TableEditor& operator=(const TableEditor&) = delete;

  /// The table before the edits.
  [[nodiscard]] const Table& table() const { return table_; }

  /// Puts `lines`, whole ones that end in "\n", behind the line of `entry`, or before the first entry when it
  /// is null. Of insertions at one place the first stands first. A blank line separates them where one
  /// separates the entries there.
  void insertBehind(const TableEntry* entry, std::string_view lines);
  void replaceText(const TableEntry& entry, std::string_view text);
  /// Marks the entry so, on a line before it, instead of as before. A translated one has no mark.
  void setState(const TableEntry& entry, TranslationState state);
  /// Replaces the comment before the entry that explains its English text, if there is one, by `explanation`.
  void setExplanation(const TableEntry& entry, const std::string& explanation);
  /// Removes the entry and the comments before it that tell the tools about it; others stay.
  void remove(const TableEntry& entry);

  [[nodiscard]] bool hasEdits() const { return !insertions_.empty() || !changes_.empty(); }
  /// The bytes of the file after the edits.
  [[nodiscard]] std::string edited() const;

 private:
  using Span = TableEntry::Span;
  struct Change {
    std::size_t end;
    std::string replacement;
  };
  struct InsertionPlace {
    std::size_t offset;
    bool isAmongBlankLines;
  };

  void change(Span span, std::string replacement) {
    changes_[span.begin] = {span.end, std::move(replacement)};
  }
  [[nodiscard]] std::size_t blanksBegin(std::size_t offset) const;
  [[nodiscard]] bool isFirstOnLine(std::size_t offset) const;
  [[nodiscard]] Span withLines(Span span) const;
  [[nodiscard]] std::size_t beginWithComments(const TableEntry& entry) const;
  [[nodiscard]] std::optional<Span> blankLineBefore(std::size_t line) const;
  [[nodiscard]] InsertionPlace placeBehind(const TableEntry* entry) const;

  std::string mark_;  // the byte-order mark, if there is one
  std::string text_;  // what stands behind it
  Table table_;
  std::map<const TableEntry*, InsertionPlace> places_;  // of the insertions behind an entry
  std::map<std::size_t, std::string> insertions_;       // by offset
  std::map<std::size_t, Change> changes_;               // by begin
};

}  // namespace zk::tools
