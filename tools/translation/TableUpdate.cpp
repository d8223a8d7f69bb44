#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/TableUpdate.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The lines for a new entry: its comments, the mark `untranslated` if it has words to translate, and the English text.
std::string untranslatedEntry(const EnglishText& english) {
  const std::string mark =
      english.settings->isSameEverywhere(english.text) ? "" : markFor(TranslationState::untranslated) + "\n";
  const std::string context = contextOf(english);
  return explanationOf(english) + "\n" + context + (context.empty() ? "" : "\n") + mark +
         tableLine(english.key, english.text);
}

/// Marks an entry that is empty or still in English as untranslated, and removes that mark from other entries.
void updateMark(const TableEntry& entry, const EnglishText& english, std::string_view language,
                TableEditor& editor, TableUpdate& update) {
  const TranslationState state = stateOf(language, &entry, english);
  const bool isUntranslated = state == TranslationState::untranslated;
  if (isUntranslated == isMarked(entry, TranslationState::untranslated)) return;
  editor.setState(entry, state);
  ++(isUntranslated ? update.marked : update.unmarked);
}

void updateUnknown(const TableEntry& entry, bool prunes, TableEditor& editor, TableUpdate& update) {
  if (prunes) {
    editor.remove(entry);
    ++update.removed;
    return;
  }
  update.unknownKeys.push_back(
      {Severity::warning, editor.table().file, entry.keyAt.line, entry.keyAt.column, "",
       fmt::format("unknown key \"{}\"; --prune removes the entry", escaped(entry.key))});
}

}  // namespace

std::size_t writeTemplate(const std::string& root, const std::string& language) {
  if (language.empty()) throw std::invalid_argument("the language is empty; write its ISO 639-1 code");
  const std::string path = tablePath(language);
  if (const std::string reason = whyNeverChosen(language); !reason.empty())
    throw std::invalid_argument(reason);
  if (pathExists(pathBelow(root, path)))
    fail(path, "the table already exists; to start over, remove it first");
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue);
  std::string table = fmt::format(
      "/* Language {}. Translate the texts after the equals signs; keep keys and placeholders. */\n",
      language);
  for (const EnglishText& text : english.all()) table += '\n' + untranslatedEntry(text);
  writeFile(root, path, table);
  return english.all().size();
}

std::size_t markChanged(TableEditor& editor, const EnglishTexts& english, const Table& base,
                        bool keepsMeaning, const std::set<std::string, std::less<>>& reviewed) {
  std::size_t marked = 0;
  for (const TableEntry& entry : editor.table().entries) {
    const EnglishText* const now = english.find(entry.key);
    if (!now) continue;
    const bool isUntranslated = isMarked(entry, TranslationState::untranslated);
    const bool isReviewed = isMarked(entry, TranslationState::needsReview);
    const std::optional<std::string> recorded = quotedIn(entry, kExplanation);
    if (recorded) editor.setComment(entry, kExplanation, explanationOf(*now));
    if (recorded || isUntranslated || isReviewed) editor.setComment(entry, kContext, contextOf(*now));

    const TableEntry* const inBase = base.find(entry.key);
    const std::string before = recorded ? *recorded : inBase ? inBase->text : now->text;
    const bool isInAnyCase = reviewed.contains(entry.key);
    if (before == now->text && !isInAnyCase) continue;
    if (isUntranslated && (entry.text == before || entry.text.empty())) {
      editor.replaceText(entry, now->text);
      continue;
    }
    if (keepsMeaning) continue;
    const std::string madeFrom = (isReviewed ? quotedIn(entry, kState) : std::nullopt).value_or(before);
    if (madeFrom == now->text && !isInAnyCase) {
      editor.setState(entry, TranslationState::translated);  // the change is taken back
      continue;
    }
    editor.setState(entry, TranslationState::needsReview, madeFrom == now->text ? "" : madeFrom);
    ++marked;
  }
  return marked;
}

TableUpdate updateTable(const std::string& root, const std::string& language, bool prunes) {
  if (language == kBase)
    throw std::invalid_argument("the English table is not translated; to add a text, use zkstrings add");
  if (std::string reason = whyNeverChosen(language); !reason.empty())
    fail(tablePath(language), std::move(reason));
  const Catalogue catalogue = Catalogue::read(root);
  const Table base = Table::readWellFormed(root, kBase);
  const EnglishTexts english(catalogue);
  TableUpdate update;
  TableEditor before = TableEditor::open(root, language);
  update.reviews = markChanged(before, english, base);
  TableEditor editor(before.edited(), before.table().file);

  const TableEntry* previous = nullptr;
  for (const EnglishText& text : english.all()) {
    if (const TableEntry* const entry = editor.table().find(text.key)) {
      previous = entry;
      updateMark(*entry, text, language, editor, update);
    } else {
      editor.insertAfter(previous, untranslatedEntry(text));
      ++update.added;
    }
  }
  for (const TableEntry& entry : editor.table().entries) {
    if (!english.find(entry.key)) updateUnknown(entry, prunes, editor, update);
  }
  update.isChange = before.hasEdits() || editor.hasEdits();
  if (update.isChange) writeFile(root, editor.table().file, editor.edited());
  return update;
}

}  // namespace zk::tools
