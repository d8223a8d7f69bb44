#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zk::tools {

/// Edits the text of a string table and leaves everything else as it is, byte for byte. Edits are collected and made at once:
///
///     TableEditor editor = TableEditor::open(root, "de");
///     if (const TableEntry* const about = editor.table().find("About")) editor.replaceText(*about, "Info");
///     if (editor.hasEdits()) writeFile(root, editor.table().file, editor.edited());
///
/// Entries are those of `table()`. An edit within a range that another edit removes has no effect.
class TableEditor {
 public:
  /// Edits the table of `language`. Throws `CommandFailed` if it cannot be read, has a syntax error, or is not UTF-8.
  [[nodiscard]] static TableEditor open(const std::string& root, std::string_view language);
  /// Edits the bytes of a table.
  TableEditor(std::string bytes, const std::string& file);
  TableEditor(const TableEditor&) = delete;
  TableEditor& operator=(const TableEditor&) = delete;

  /// The table before the edits.
  [[nodiscard]] const Table& table() const { return table_; }

  /// Puts `lines`, each with its "\n", after the line of `entry`, or before the first entry if it is null. Several
  /// insertions at one place keep their order. A blank line separates them if one separates the entries there.
  void insertAfter(const TableEntry* entry, std::string_view lines);
  void replaceKey(const TableEntry& entry, std::string_view key);
  void replaceText(const TableEntry& entry, std::string_view text);
  /// Replaces `from`, such as "%{value}", with `to` in the text of the entry and in the comments before it.
  void replacePlaceholder(const TableEntry& entry, std::string_view from, std::string_view to);
  /// Replaces the comment before the entry that begins with `name` ("context:"), or adds one; removes it if `comment` is empty.
  void setComment(const TableEntry& entry, std::string_view name, std::string comment);
  /// Sets the comment that marks the entry; a translated one has none. `previousEnglish` is the text that a translation
  /// to be reviewed was made from; if it is empty, the mark keeps the one that it has.
  void setState(const TableEntry& entry, TranslationState state, std::string_view previousEnglish = "");
  /// Removes the entry with the comments that belong to it. A comment at the beginning of the file remains.
  void remove(const TableEntry& entry);

  [[nodiscard]] bool hasEdits() const { return !edits_.empty(); }
  /// The bytes of the file after the edits.
  [[nodiscard]] std::string edited() const;
  /// The bytes of the file before the edits, sorted by `order`, without all but the last entry of a repeated key.
  [[nodiscard]] std::string sorted(const EnglishTexts& order) const;

 private:
  using Span = TableEntry::Span;
  /// The kinds of edits at one place, in the order in which they take effect.
  enum class Kind { insertion, comment, replacement };
  struct Edit {
    std::size_t end;
    std::string replacement;
  };

  void replace(Span span, std::string replacement) {
    edits_[{span.begin, Kind::replacement}] = {span.end, std::move(replacement)};
  }
  [[nodiscard]] std::size_t blanksBegin(std::size_t offset) const;
  [[nodiscard]] bool isFirstOnLine(std::size_t offset) const;
  [[nodiscard]] Span withLines(Span span) const;
  [[nodiscard]] std::size_t beginWithComments(const TableEntry& entry) const;
  [[nodiscard]] std::optional<Span> blankLineBefore(std::size_t line) const;

  std::string mark_;  // the byte-order mark, if there is one
  std::string text_;  // what follows it
  Table table_;
  std::map<std::pair<std::size_t, Kind>, Edit> edits_;  // by begin
};

}  // namespace zk::tools
