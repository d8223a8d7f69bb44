#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/Nearest.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TableEditor.h>
#include <ZKStrings/tools/translation/Template.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The index of the form for one in `kPluralForms`.
constexpr std::size_t kFormForOne = 1;

[[noreturn]] void refuse(const std::string& reason) {
  throw std::invalid_argument(reason);
}

void refuseFaultIn(const Entry& entry) {
  if (const std::string fault = Catalogue::faultIn(entry); !fault.empty()) refuse(fault);
}

void refuseUnknownPlaceholders(const std::string& form, const std::string& text) {
  const std::vector<std::string_view> allowed = placeholderNames(text);
  for (const std::string_view name : placeholderNames(form)) {
    if (std::find(allowed.begin(), allowed.end(), name) == allowed.end())
      refuse(
          fmt::format("the form \"{}\" has the placeholder \"%{{{}}}\", which the text lacks", form, name));
  }
}

void refuseWrongBytes(const std::string& text) {
  if (!isUtf8(text)) refuse("the text is not UTF-8; see that your terminal writes UTF-8");
  if (hasCarriageReturnOrNul(text)) refuse(kNoCarriageReturn);
}

void refuseWrongTexts(const PluralForms& forms, const std::string& text, bool isCounted) {
  refuseWrongBytes(text);
  for (const std::optional<std::string>& form : forms) {
    if (!form) continue;
    refuseWrongBytes(*form);
    if (!isCounted)
      refuse("a text without count has no plural forms; leave them out, or add it with --count");
    refuseUnknownPlaceholders(*form, text);
  }
}

/// The forms of a counted text, all of them.
PluralForms completed(PluralForms forms, const std::string& text) {
  if (!forms[kFormForOne]) refuse("a counted text needs its form for one; add --one 'TEXT'");
  for (std::optional<std::string>& form : forms) form = form.value_or(text);
  return forms;
}

Entry entryFor(const NewEntry& added, const Catalogue& catalogue) {
  const std::string ruled = keyForText(added.text);
  Entry entry{added.key.empty() ? ruled : added.key, added.text, added.plural};
  if (entry.text.empty()) refuse("the text is empty; give one");
  if (entry.key.empty()) refuse("the text has no letter or digit to make a key of; give it one with --key");
  if (keyForText(entry.key) != entry.key)
    refuse(
        fmt::format("the key \"{}\" cannot name a function; write \"{}\"", entry.key, keyForText(entry.key)));
  if (entry.key != ruled) entry.kept = Entry::Kept::key;
  refuseFaultIn(entry);
  for (const Entry& present : catalogue.entries()) {
    if (present.key == entry.key && (present.plural == entry.plural || present.text != entry.text))
      refuse(fmt::format("the key \"{}\" is that of the text \"{}\"; give the new text another with --key",
                         entry.key, escaped(present.text)));
  }
  return entry;
}

/// Inserts the lines of the new `entry` into the English table, after those of the looked-up key before it. A line that
/// is there already, from a command that was killed, gets the new text.
void insertLines(const Catalogue& catalogue, const Entry& entry, const PluralForms& forms,
                 TableEditor& base) {
  const TableEntry* before = nullptr;
  std::string lines;
  const auto* form = forms.begin();
  for (const auto& key : catalogue.lookedUpKeys()) {
    const TableEntry* const present = base.table().find(key.key);
    if (key.entry == &entry) {
      const std::string& text = entry.plural ? **form++ : entry.text;
      if (present) {
        base.replaceText(*present, text);
      } else {
        lines += tableLine(key.key, text);
      }
    }
    if (present && lines.empty()) before = present;
  }
  if (!lines.empty()) base.insertBehind(before, lines);
}

/// The entries of `key`, counted or not. Throws with the nearest key when there are none.
std::vector<Entry*> entriesOf(Catalogue& catalogue, const std::string& key) {
  std::vector<Entry*> found;
  std::vector<std::string_view> keys;
  for (Entry& entry : catalogue.entries()) {
    keys.push_back(entry.key);
    if (entry.key == key) found.push_back(&entry);
  }
  if (!found.empty()) return found;
  const std::optional<std::string_view> meant = nearest(key, keys);
  refuse(fmt::format("the catalogue has no key \"{}\"; {}", key,
                     didYouMean(meant, fmt::format("see {} for those it has", Catalogue::kFile))));
}

/// A key that the tables have for an entry, with the place of its plural form (none for a bare key).
struct TableKey {
  std::string key;
  std::optional<std::size_t> form;
};
std::vector<TableKey> tableKeysOf(const std::vector<Entry*>& entries) {
  std::vector<TableKey> keys;
  for (const Entry* const entry : entries) {
    if (!entry->plural) keys.push_back({entry->key, std::nullopt});
    for (std::size_t i = 0; entry->plural && i < std::size(kPluralForms); ++i)
      keys.push_back({entry->key + std::string(kPluralForms[i].suffix), i});
  }
  return keys;
}

/// What each translation that `edit` changes holds then.
std::vector<FileChange> editTranslations(const std::string& root, const std::vector<TableKey>& keys,
                                         const std::function<void(TableEditor&, const TableEntry&)>& edit) {
  std::vector<FileChange> changes;
  for (const std::string& language : languagesIn(root)) {
    if (language == kBase) continue;
    TableEditor editor = TableEditor::open(root, language);
    for (const TableKey& key : keys) {
      if (const TableEntry* const entry = editor.table().find(key.key)) edit(editor, *entry);
    }
    if (editor.hasEdits()) changes.push_back({editor.table().file, editor.edited()});
  }
  return changes;
}

/// The new English text of a table's key: the form given for it, or the new text where it had the old one.
std::string changedText(const TableKey& key, const std::string& present, const std::string& oldText,
                        const std::string& newText, const PluralForms& forms) {
  if (!key.form) return newText;
  if (forms[*key.form]) return *forms[*key.form];
  if (present == oldText || present == newText) return newText;
  const std::string_view name = kPluralForms[*key.form].suffix.substr(1);
  refuse(fmt::format("the form for {} is \"{}\"; say what it is now with --{} 'TEXT'",
                     kPluralForms[*key.form].counts, escaped(present), name));
}

}  // namespace

std::string keyOf(const std::string& text) {
  refuseWrongBytes(text);
  std::string key = keyForText(text);
  if (key.empty()) refuse("the text has no letter or digit to make a key of");
  return key;
}

std::string addEntry(const std::string& root, const NewEntry& added) {
  Catalogue catalogue = Catalogue::read(root);
  refuseWrongTexts(added.forms, added.text, added.plural);
  const PluralForms forms = added.plural ? completed(added.forms, added.text) : PluralForms();
  Entry entry = entryFor(added, catalogue);
  const std::size_t place = catalogue.placeFor(entry.key, entry.plural);
  entry.line = place + 2;
  const std::string key = entry.key;
  catalogue.insert(place, std::move(entry));

  TableEditor base = TableEditor::open(root, kBase);
  insertLines(catalogue, catalogue.entries()[place], forms, base);
  writeCatalogue(root, catalogue, base.edited());
  return key;
}

std::size_t changeEntry(const std::string& root, const std::string& key, const std::string& text,
                        const PluralForms& forms) {
  Catalogue catalogue = Catalogue::read(root);
  const std::vector<Entry*> entries = entriesOf(catalogue, key);
  const std::string oldText = entries.front()->text;
  refuseWrongTexts(forms, text, entries.back()->plural);
  if (text.empty()) refuse("the new text is empty; zkstrings remove removes one");
  for (Entry* const entry : entries) {
    entry->text = text;
    if (entry->kept != Entry::Kept::place)
      entry->kept = key == keyForText(text) ? Entry::Kept::nothing : Entry::Kept::key;
    refuseFaultIn(*entry);
  }

  const std::vector<TableKey> keys = tableKeysOf(entries);
  TableEditor base = TableEditor::open(root, kBase);
  for (const TableKey& tableKey : keys) {
    const TableEntry* const entry = base.table().find(tableKey.key);
    if (entry) base.replaceText(*entry, changedText(tableKey, entry->text, oldText, text, forms));
  }
  const EnglishTexts english(catalogue, Table::parse(base.edited(), tablePath(kBase)));
  std::size_t marked = 0;
  const auto mark = [&](TableEditor& editor, const TableEntry& entry) {
    const EnglishText& now = *english.find(entry.key);
    editor.setExplanation(entry, explanationOf(now));
    if (isMarked(entry, TranslationState::untranslated)) return editor.replaceText(entry, now.text);
    editor.setState(entry, TranslationState::needsReview);
    ++marked;
  };
  writeCatalogue(root, catalogue, base.edited(), editTranslations(root, keys, mark));
  return marked;
}

void removeEntry(const std::string& root, const std::string& key) {
  Catalogue catalogue = Catalogue::read(root);
  const std::vector<TableKey> keys = tableKeysOf(entriesOf(catalogue, key));
  std::erase_if(catalogue.entries(), [&](const Entry& entry) { return entry.key == key; });

  TableEditor base = TableEditor::open(root, kBase);
  for (const TableKey& tableKey : keys) {
    if (const TableEntry* const entry = base.table().find(tableKey.key)) base.remove(*entry);
  }
  const auto remove = [](TableEditor& editor, const TableEntry& entry) { editor.remove(entry); };
  writeCatalogue(root, catalogue, base.edited(), editTranslations(root, keys, remove));
}

}  // namespace zk::tools
