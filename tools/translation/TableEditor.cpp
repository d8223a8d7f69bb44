#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/translation/TableEditor.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

namespace {

constexpr std::string_view kBlanks = " \t";

bool isForTools(const TableEntry::Comment& comment) {
  const auto begins = [&](std::string_view name) { return wordsAfter(comment, name).has_value(); };
  return begins(kExplanation) || begins(kContext) || begins(kState) || begins(kCheck);
}

}  // namespace

TableEditor TableEditor::open(const std::string& root, std::string_view language) {
  static_cast<void>(Table::readWellFormed(root, language));  // throws if there is none
  const std::string file = tablePath(language);
  return {readFile(root, file), file};
}

TableEditor::TableEditor(std::string bytes, const std::string& file) : text_(std::move(bytes)) {
  table_ = Table::parse(text_, file);
  if (!table_.diagnostics.empty()) throw CommandFailed{table_.diagnostics};
  if (!isUtf8(text_)) fail(file, "the table is not in UTF-8; save it as UTF-8");
  if (!text_.starts_with(kByteOrderMark)) return;
  mark_ = kByteOrderMark;
  text_.erase(0, mark_.size());
}

std::size_t TableEditor::blanksBegin(std::size_t offset) const {
  return offset == 0 ? 0 : text_.find_last_not_of(kBlanks, offset - 1) + 1;
}

/// Whether only blanks come before `offset` on its line.
bool TableEditor::isFirstOnLine(std::size_t offset) const {
  const std::size_t begin = blanksBegin(offset);
  return begin == 0 || text_[begin - 1] == '\n';
}

/// `span`, and the rest of its lines if they have nothing else; otherwise the blanks after it.
TableEditor::Span TableEditor::withLines(Span span) const {
  const std::size_t after = std::min(text_.find_first_not_of(" \t\r", span.end), text_.size());
  const bool isLastOnLine = after == text_.size() || text_[after] == '\n';
  if (isFirstOnLine(span.begin) && isLastOnLine)
    return {blanksBegin(span.begin), std::min(after + 1, text_.size())};
  return {span.begin, std::min(text_.find_first_not_of(kBlanks, span.end), text_.size())};
}

/// Where the lines of an entry begin, with the comments right before it and those that are for the tools. Another
/// comment at the beginning of the file is about the whole file.
std::size_t TableEditor::beginWithComments(const TableEntry& entry) const {
  std::size_t begin = entry.span.begin;
  bool isRightBefore = true;
  for (auto comment = entry.comments.rbegin(); comment != entry.comments.rend(); ++comment) {
    const auto [commentBegin, commentEnd] = comment->span;
    if (commentBegin > begin) continue;  // within the entry
    const auto end = text_.begin() + static_cast<std::ptrdiff_t>(commentEnd);
    const auto next = text_.begin() + static_cast<std::ptrdiff_t>(begin);
    isRightBefore = isRightBefore && commentBegin > 0 && std::count(end, next, '\n') <= 1;
    if (isRightBefore || isForTools(*comment)) begin = commentBegin;
  }
  return isFirstOnLine(begin) ? blanksBegin(begin) : begin;
}

/// The blank line before the one that begins at `line`; nothing if there is none.
std::optional<TableEditor::Span> TableEditor::blankLineBefore(std::size_t line) const {
  if (line == 0 || text_[line - 1] != '\n') return std::nullopt;
  const std::size_t end = line - (std::string_view(text_).substr(0, line).ends_with("\r\n") ? 2 : 1);
  if (!isFirstOnLine(end)) return std::nullopt;
  return Span{blanksBegin(end), line};
}

void TableEditor::insertAfter(const TableEntry* entry, std::string_view lines) {
  const TableEntry* const first = table_.entries.empty() ? nullptr : &table_.entries.front();
  const TableEntry* const neighbour = entry ? entry : first;
  const std::size_t place = entry   ? endOfLine(text_, *entry)
                            : first ? beginWithComments(*first)
                                    : text_.size();
  // The blank line before the first entry ends the file's head, so the second entry shows what separates entries.
  const TableEntry* const second =
      neighbour == first && table_.entries.size() > 1 ? &table_.entries[1] : neighbour;
  const std::string separator = second && blankLineBefore(beginWithComments(*second)) ? "\n" : "";
  auto& [end, inserted] = edits_[{place, Kind::insertion}];
  end = place;
  if (inserted.empty() && place > 0 && text_[place - 1] != '\n') inserted = "\n";
  inserted += entry ? separator : "";
  inserted += lines;
  inserted += entry ? "" : separator;
}

void TableEditor::replaceKey(const TableEntry& entry, std::string_view key) {
  replace(entry.keySpan, '"' + escaped(key) + '"');
}

void TableEditor::replaceText(const TableEntry& entry, std::string_view text) {
  replace(entry.spelledSpan, '"' + escaped(text) + '"');
}

void TableEditor::replacePlaceholder(const TableEntry& entry, std::string_view from, std::string_view to) {
  const auto replaceIn = [&](Span span) {
    const std::string before = text_.substr(span.begin, span.end - span.begin);
    const std::string bytes = replaceAll(before, from, to);
    if (bytes != before) replace(span, bytes);
  };
  replaceIn(entry.spelledSpan);
  for (const TableEntry::Comment& comment : entry.comments) replaceIn(comment.span);
}

void TableEditor::setComment(const TableEntry& entry, std::string_view name, std::string comment) {
  for (const TableEntry::Comment& present : entry.comments) {
    if (!wordsAfter(present, name)) continue;
    if (text_.compare(present.span.begin, present.span.end - present.span.begin, comment) == 0) return;
    const Span span = comment.empty() ? withLines(present.span) : present.span;
    replace(span, std::exchange(comment, ""));
  }
  if (comment.empty()) return;
  const std::size_t key = entry.span.begin;
  const std::string indent = text_.substr(blanksBegin(key), key - blanksBegin(key));
  auto& [end, inserted] = edits_[{key, Kind::comment}];
  end = key;
  inserted += comment + (isFirstOnLine(key) ? "\n" + indent : " ");
}

void TableEditor::setState(const TableEntry& entry, TranslationState state,
                           std::string_view previousEnglish) {
  const bool hasMark = state == TranslationState::untranslated || state == TranslationState::needsReview;
  const std::string known = quotedIn(entry, kState).value_or("");
  setComment(entry, kState, hasMark ? markFor(state, previousEnglish.empty() ? known : previousEnglish) : "");
}

void TableEditor::remove(const TableEntry& entry) {
  const std::size_t begin = beginWithComments(entry);
  const bool hasLines = isFirstOnLine(begin) && endOfLine(text_, entry) > entry.span.end;
  const Span span = hasLines ? Span{begin, endOfLine(text_, entry)} : withLines({begin, entry.span.end});
  replace(span, "");
  // Of the two blank lines before and after the entry, one remains.
  const std::string_view rest = std::string_view(text_).substr(span.end);
  const bool isBeforeBlankLine = rest.empty() || rest.starts_with("\n") || rest.starts_with("\r\n");
  const std::optional<Span> blankLine = blankLineBefore(span.begin);
  if (blankLine && isBeforeBlankLine) replace(*blankLine, "");
}

std::string TableEditor::edited() const {
  std::string result = mark_;
  std::size_t at = 0;
  const auto copyUpTo = [&](std::size_t offset) {
    result += text_.substr(at, offset - at);
    at = offset;
  };
  const bool hasCarriageReturns = text_.find("\r\n") < text_.find('\n');
  for (const auto& [place, edit] : edits_) {
    const auto [begin, kind] = place;
    if (begin < at && kind != Kind::insertion) continue;
    copyUpTo(std::max(begin, at));
    result += hasCarriageReturns ? replaceAll(edit.replacement, "\n", "\r\n") : edit.replacement;
    at = std::max(at, edit.end);
  }
  copyUpTo(text_.size());
  return result;
}

std::string TableEditor::sorted(const EnglishTexts& order) const {
  struct Block {
    std::ptrdiff_t rank;
    std::string lines;
  };
  std::vector<Block> blocks;
  const std::size_t first = table_.entries.empty() ? text_.size() : beginWithComments(table_.entries.front());
  std::size_t begin = first;
  std::ptrdiff_t rank = 0;
  for (const TableEntry& entry : table_.entries) {
    const EnglishText* const text = order.find(entry.key);
    if (text) rank = text - order.all().data();  // an unknown key stays after the entry before it
    const std::size_t end = endOfLine(text_, entry);
    if (table_.find(entry.key) == &entry) blocks.push_back({rank, text_.substr(begin, end - begin)});
    begin = end;
  }
  const std::string blankLine = blocks.size() > 1 && blocks[1].lines.starts_with('\n') ? "\n" : "";
  if (!blocks.empty() && !blocks[0].lines.starts_with('\n')) blocks[0].lines.insert(0, blankLine);
  if (!blocks.empty() && !blocks.back().lines.ends_with('\n')) blocks.back().lines += '\n';
  std::stable_sort(blocks.begin(), blocks.end(),
                   [](const Block& a, const Block& b) { return a.rank < b.rank; });
  std::string sorted;
  for (const Block& block : blocks) sorted += block.lines;
  const std::size_t extra = sorted.starts_with('\n') ? 1 : 0;
  return mark_ + text_.substr(0, first) + sorted.substr(extra) + text_.substr(begin);
}

}  // namespace zk::tools
