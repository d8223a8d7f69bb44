#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <algorithm>
#include <utility>

namespace zk::tools {

namespace {

constexpr std::string_view kBlanks = " \t";

bool tellsTools(const TableEntry::Comment& comment) {
  const auto tells = [&](std::string_view name) { return wordsTold(comment, name).has_value(); };
  return tells(kExplanation) || tells(kContext) || tells(kState) || tells(kCheck);
}

}  // namespace

TableEditor TableEditor::open(const std::string& root, std::string_view language) {
  static_cast<void>(Table::readWellFormed(root, language));  // throws when there is none
  const std::string file = tablePath(language);
  return {readFile(root, file), file};
}

TableEditor::TableEditor(std::string bytes, const std::string& file) : text_(std::move(bytes)) {
  table_ = Table::parse(text_, file);
  if (!table_.diagnostics.empty()) throw CommandFailed{table_.diagnostics};
  if (!isUtf8(text_)) fail(file, "only tables in UTF-8 are edited; save the file as UTF-8");
  if (!text_.starts_with(kByteOrderMark)) return;
  mark_ = kByteOrderMark;
  text_.erase(0, mark_.size());
}

/// Where the blanks begin that stand before `offset`.
std::size_t TableEditor::blanksBegin(std::size_t offset) const {
  return offset == 0 ? 0 : text_.find_last_not_of(kBlanks, offset - 1) + 1;
}

/// Whether only blanks stand before `offset` on its line.
bool TableEditor::isFirstOnLine(std::size_t offset) const {
  const std::size_t begin = blanksBegin(offset);
  return begin == 0 || text_[begin - 1] == '\n';
}

/// `span`, and the rest of its lines when nothing else stands on them; otherwise the blanks behind it.
TableEditor::Span TableEditor::withLines(Span span) const {
  const std::size_t behind = std::min(text_.find_first_not_of(" \t\r", span.end), text_.size());
  const bool isLastOnLine = behind == text_.size() || text_[behind] == '\n';
  if (isFirstOnLine(span.begin) && isLastOnLine)
    return {blanksBegin(span.begin), std::min(behind + 1, text_.size())};
  return {span.begin, std::min(text_.find_first_not_of(kBlanks, span.end), text_.size())};
}

/// Where the lines begin that belong to an entry: those of the comments right before it, and of those that
/// tell the tools about it.
std::size_t TableEditor::beginWithComments(const TableEntry& entry) const {
  std::size_t begin = entry.span.begin;
  bool isRightBefore = true;
  for (auto comment = entry.comments.rbegin(); comment != entry.comments.rend(); ++comment) {
    const auto [commentBegin, commentEnd] = comment->span;
    if (commentBegin > begin) continue;  // within the entry
    const auto end = text_.begin() + static_cast<std::ptrdiff_t>(commentEnd);
    const auto next = text_.begin() + static_cast<std::ptrdiff_t>(begin);
    isRightBefore = isRightBefore && std::count(end, next, '\n') <= 1;
    if (isRightBefore || tellsTools(*comment)) begin = commentBegin;
  }
  return isFirstOnLine(begin) ? blanksBegin(begin) : begin;
}

/// The blank line before the one that begins at `line`; nothing when there is none.
std::optional<TableEditor::Span> TableEditor::blankLineBefore(std::size_t line) const {
  if (line == 0 || text_[line - 1] != '\n') return std::nullopt;
  const std::size_t end = line - (std::string_view(text_).substr(0, line).ends_with("\r\n") ? 2 : 1);
  if (!isFirstOnLine(end)) return std::nullopt;
  return Span{blanksBegin(end), line};
}

TableEditor::InsertionPlace TableEditor::placeBehind(const TableEntry* entry) const {
  const TableEntry* const first = table_.entries.empty() ? nullptr : &table_.entries.front();
  const TableEntry* const neighbour = entry ? entry : first;
  if (!neighbour) return {text_.size(), false};
  const std::size_t place = entry ? endOfLine(text_, *entry) : beginWithComments(*neighbour);
  // What stands before the first entry is the file's head, and tells nothing of the entries.
  const TableEntry* const second =
      neighbour == first && table_.entries.size() > 1 ? &table_.entries[1] : neighbour;
  return {place, blankLineBefore(beginWithComments(*second)).has_value()};
}

void TableEditor::insertBehind(const TableEntry* entry, std::string_view lines) {
  const auto [known, isNew] = places_.try_emplace(entry);
  if (isNew) known->second = placeBehind(entry);
  const auto [offset, isAmongBlankLines] = known->second;
  std::string& inserted = insertions_[offset];
  if (inserted.empty() && offset > 0 && text_[offset - 1] != '\n') inserted = "\n";
  if (isAmongBlankLines && entry) inserted += "\n";
  inserted += lines;
  if (isAmongBlankLines && !entry) inserted += "\n";
}

void TableEditor::replaceText(const TableEntry& entry, std::string_view text) {
  change(entry.spelledSpan, '"' + escaped(text) + '"');
}

void TableEditor::setState(const TableEntry& entry, TranslationState state) {
  const bool hasMark = state == TranslationState::untranslated || state == TranslationState::needsReview;
  std::string mark = hasMark ? markFor(state) : "";
  for (const TableEntry::Comment& comment : entry.comments) {
    if (!wordsTold(comment, kState)) continue;
    const Span span = mark.empty() ? withLines(comment.span) : comment.span;
    change(span, std::exchange(mark, ""));
  }
  if (mark.empty()) return;
  const std::size_t key = entry.span.begin;
  const std::string indent = text_.substr(blanksBegin(key), key - blanksBegin(key));
  change({key, key}, isFirstOnLine(key) ? mark + "\n" + indent : mark + " ");
}

void TableEditor::setExplanation(const TableEntry& entry, const std::string& explanation) {
  for (const TableEntry::Comment& comment : entry.comments) {
    if (wordsTold(comment, kExplanation)) change(comment.span, explanation);
  }
}

void TableEditor::remove(const TableEntry& entry) {
  Span first = withLines(entry.span);
  change(first, "");
  for (auto comment = entry.comments.rbegin(); comment != entry.comments.rend(); ++comment) {
    if (comment->span.begin > entry.span.begin || !tellsTools(*comment)) continue;
    const Span span = withLines(comment->span);
    change(span, "");
    if (span.end == first.begin) first = span;
  }
  // Of the two blank lines between which the entry stood, one is left.
  const std::size_t behind = withLines(entry.span).end;
  const std::string_view rest = std::string_view(text_).substr(behind);
  const bool isBeforeBlankLine = rest.empty() || rest.starts_with("\n") || rest.starts_with("\r\n");
  const std::optional<Span> blankLine = blankLineBefore(first.begin);
  if (blankLine && isBeforeBlankLine) change(*blankLine, "");
}

std::string TableEditor::edited() const {
  std::string result = mark_;
  std::size_t at = 0;
  const auto copyUpTo = [&](std::size_t offset) {
    result += text_.substr(at, offset - at);
    at = offset;
  };
  const bool hasCarriageReturns = text_.find("\r\n") < text_.find('\n');
  const auto add = [&](const std::string& lines) {
    result += hasCarriageReturns ? replaceAll(lines, "\n", "\r\n") : lines;
  };
  auto insertion = insertions_.begin();
  for (const auto& [begin, change] : changes_) {
    for (; insertion != insertions_.end() && insertion->first <= begin; ++insertion) {
      copyUpTo(std::max(insertion->first, at));
      add(insertion->second);
    }
    if (begin < at) continue;
    copyUpTo(begin);
    add(change.replacement);
    at = change.end;
  }
  for (; insertion != insertions_.end(); ++insertion) {
    copyUpTo(std::max(insertion->first, at));
    add(insertion->second);
  }
  copyUpTo(text_.size());
  return result;
}

}  // namespace zk::tools
