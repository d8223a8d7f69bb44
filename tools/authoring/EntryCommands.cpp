#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/authoring/EntryCommands.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::size_t kFormForOne = 1;

[[noreturn]] void refuse(const std::string& reason) {
  throw std::invalid_argument(reason);
}

/// Completes `entry` after a change of its text or key, and throws if it is not valid.
void finish(Entry& entry) {
  keepKeyIfNeeded(entry);
  if (const std::string error = Catalogue::errorIn(entry); !error.empty()) refuse(error);
}

void refuseWrongBytes(const std::string& text) {
  if (!isUtf8(text)) refuse("the text is not UTF-8; set your terminal to UTF-8");
  if (hasCarriageReturnOrNul(text)) refuse(kNoCarriageReturn);
}

/// Throws if `text` is not UTF-8 or, unless it is plain, has a placeholder of another system: "%s", "%1", "%@", "{name}".
void refuseWrongText(const std::string& text, bool isPlain) {
  refuseWrongBytes(text);
  std::string_view foreign = text.find("%@") == std::string::npos ? "" : "%@";
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (foreign.empty() && !use.isRight && !use.spelled.starts_with("%{")) foreign = use.spelled;
  }
  if (foreign.empty() || isPlain) return;
  refuse(
      fmt::format("\"{}\" is not a placeholder; write %{{name}}, or use --count and --one for plural forms, "
                  "or --plain for plain text",
                  foreign));
}

void refuseWrongTexts(const std::string& text, bool isCounted, const PluralForms& forms, bool isPlain) {
  if (!isCounted && forms != PluralForms{})
    refuse("a text without a count has no plural forms; omit them, or add --count");
  refuseWrongText(text, isPlain);
  for (const std::optional<std::string>& form : forms) refuseWrongText(form.value_or(""), isPlain);
}

void setForms(Entry& entry, const PluralForms& forms) {
  if (!forms[kFormForOne]) refuse("a text with a count needs the form for one; add --one 'TEXT'");
  entry.forms = forms;
}

void refuseWrongKey(const std::string& key) {
  if (keyForText(key) != key)
    refuse(fmt::format("the key \"{}\" is not a valid function name; use \"{}\"", key, keyForText(key)));
}

/// The entries of `key`, counted or not. Throws with the nearest key if there are none.
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
                     didYouMean(meant, fmt::format("{} lists all keys", Catalogue::kFile))));
}

/// The keys of `entry` in the tables, each with its new key if the entry gets the key `newKey`; empty if that is empty.
std::map<std::string, std::string> renamedKeys(const Entry& entry, const std::string& newKey) {
  std::map<std::string, std::string> keys;
  for (const std::string& key : entry.lookedUpKeys())
    keys.emplace(key, newKey.empty() ? "" : newKey + key.substr(entry.key.size()));
  return keys;
}

void changeTexts(Entry& entry, const EntryChange& change) {
  const std::string old = std::exchange(entry.text, change.text.value_or(entry.text));
  for (std::size_t i = 0; entry.plural && i < entry.forms.size(); ++i) {
    std::optional<std::string>& form = entry.forms[i];
    if (change.forms[i]) {
      form = change.forms[i];
    } else if (!form || *form == old) {
      form.reset();
    } else if (entry.text != old) {
      const auto& [suffix, counts, example] = kPluralForms[i];
      refuse(fmt::format("the form for {} is still \"{}\"; set the new one with --{} 'TEXT'", counts,
                         escaped(*form), suffix.substr(1)));
    }
  }
}

void renamePlaceholder(Entry& entry, const std::string& renaming, TableChange& tables) {
  const std::size_t equals = renaming.find('=');
  if (equals == std::string::npos)
    refuse("expected the old and the new name of the placeholder, as in value=player");
  const std::string name = renaming.substr(0, equals);
  const std::vector<std::string_view> names = placeholderNames(entry.text);
  if (std::find(names.begin(), names.end(), name) == names.end()) {
    refuse(fmt::format("\"{}\" has no placeholder \"%{{{}}}\"; its text is \"{}\"", entry.key, name,
                       escaped(entry.text)));
  }
  tables.oldPlaceholder = "%{" + name + "}";
  tables.newPlaceholder = "%{" + renaming.substr(equals + 1) + "}";
  tables.renamed.merge(renamedKeys(entry, entry.key));
  entry.text = replaceAll(entry.text, tables.oldPlaceholder, tables.newPlaceholder);
  for (std::optional<std::string>& form : entry.forms)
    if (form) form = replaceAll(*form, tables.oldPlaceholder, tables.newPlaceholder);
}

/// Adds a count to a text. Its translations become the form for many.
void addCount(Entry& entry, const PluralForms& forms, TableChange& tables) {
  entry.plural = true;
  setForms(entry, forms);
  const std::string many = entry.key + std::string(std::rbegin(kPluralForms)->suffix);
  tables.renamed.emplace(entry.key, many);
  tables.reviewed.insert(many);
}

}  // namespace

std::string keyOf(const std::string& text) {
  refuseWrongBytes(text);
  std::string key = keyForText(text);
  if (key.empty()) refuse("the text has no letters or digits to derive a key from");
  return key;
}

std::string addEntry(const std::string& root, const Entry& added, bool isPlain) {
  Catalogue catalogue = Catalogue::read(root);
  refuseWrongTexts(added.text, added.plural, added.forms, isPlain);
  Entry entry = added;
  if (entry.key.empty()) entry.key = keyForText(entry.text);
  if (entry.text.empty()) refuse("the text is empty; write one");
  if (entry.key.empty()) refuse("the text has no letters or digits to derive a key from; set one with --key");
  refuseWrongKey(entry.key);
  if (entry.plural) setForms(entry, added.forms);
  finish(entry);
  for (const Entry& present : catalogue.entries()) {
    if (present.key == entry.key && (present.plural == entry.plural || present.text != entry.text))
      refuse(fmt::format("the key \"{}\" already belongs to the text \"{}\"; set another with --key",
                         entry.key, escaped(present.text)));
  }
  catalogue.entries().push_back(entry);
  catalogue.sort();
  writeCatalogue(root, catalogue);
  return entry.key;
}

std::size_t changeEntry(const std::string& root, const std::string& key, const EntryChange& change) {
  Catalogue catalogue = Catalogue::read(root);
  const std::vector<Entry*> entries = entriesOf(catalogue, key);
  const bool hasCount = entries.back()->plural;
  refuseWrongTexts(change.text.value_or(""), hasCount || change.plural, change.forms, change.isPlain);
  if (change.text && change.text->empty())
    refuse("the new text is empty; to remove a text, use zkstrings remove");
  if (change.plural && hasCount) refuse(fmt::format("\"{}\" already has a count; omit --count", key));
  TableChange tables;
  tables.keepsMeaning = change.keepsMeaning;
  for (Entry* const entry : entries) {
    if (!change.placeholder.empty()) renamePlaceholder(*entry, change.placeholder, tables);
    changeTexts(*entry, change);
    if (change.plural) addCount(*entry, change.forms, tables);
    entry->comment = change.comment.value_or(entry->comment);
    entry->max = change.max.value_or(entry->max);
    finish(*entry);
  }
  return writeCatalogue(root, catalogue, tables);
}

void renameEntry(const std::string& root, const std::string& key, const std::string& newKey) {
  Catalogue catalogue = Catalogue::read(root);
  const std::vector<Entry*> entries = entriesOf(catalogue, key);
  refuseWrongKey(newKey);
  for (const Entry& present : catalogue.entries()) {
    if (present.key == newKey)
      refuse(fmt::format("the key \"{}\" already belongs to the text \"{}\"; choose another", newKey,
                         escaped(present.text)));
  }
  TableChange tables;
  tables.sorts = true;
  for (Entry* const entry : entries) {
    tables.renamed.merge(renamedKeys(*entry, newKey));
    entry->key = newKey;
    finish(*entry);
  }
  catalogue.sort();
  writeCatalogue(root, catalogue, tables);
}

void removeEntry(const std::string& root, const std::string& key) {
  Catalogue catalogue = Catalogue::read(root);
  TableChange tables;
  for (const Entry* const entry : entriesOf(catalogue, key)) tables.renamed.merge(renamedKeys(*entry, ""));
  std::erase_if(catalogue.entries(), [&](const Entry& entry) { return entry.key == key; });
  writeCatalogue(root, catalogue, tables);
}

}  // namespace zk::tools
