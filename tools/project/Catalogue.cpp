#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

constexpr const char* kFile = Catalogue::kFile;

constexpr std::pair<Entry::Kept, const char*> kKeptNames[] = {{Entry::Kept::key, "key"},
                                                              {Entry::Kept::place, "place"}};

void storePlural(const JsonValue& value, Entry& entry) {
  entry.plural = true;
  if (value.isTrue()) return;
  if (!value.isObject() || value.members().empty())
    value.fail("expected true or plural forms; write {\"one\": \"...\"}");
  std::vector<KnownMember> known;
  known.reserve(entry.forms.size());
  for (std::size_t i = 0; i < entry.forms.size(); ++i)
    known.push_back({kPluralForms[i].suffix.substr(1),
                     [&entry, i](const JsonValue& form) { entry.forms[i] = form.text(); }});
  storeMembers(value, known);
}

void storeKept(const JsonValue& value, Entry& entry) {
  for (const auto& [kept, name] : kKeptNames) {
    if (value.text() == name) entry.kept = kept;
  }
  if (entry.kept == Entry::Kept::nothing) value.fail("unknown value; write \"key\" or \"place\"");
}

void storeMax(const JsonValue& value, Entry& entry) {
  if (value.integer() < 1) value.fail("the limit is below 1; write the maximum number of characters");
  entry.max = static_cast<std::size_t>(value.integer());
}

/// Returns the entry of one line, without its comma.
Entry entryFrom(std::string_view line, std::size_t number) {
  const JsonValue object = JsonValue::parse(line, kFile, {number, 1});
  Entry entry;
  entry.line = number;
  storeMembers(object, {{"key", [&](const JsonValue& value) { entry.key = value.nonEmptyText(); }},
                        {"text", [&](const JsonValue& value) { entry.text = value.nonEmptyText(); }},
                        {"plural", [&](const JsonValue& value) { storePlural(value, entry); }},
                        {"kept", [&](const JsonValue& value) { storeKept(value, entry); }},
                        {"comment", [&](const JsonValue& value) { entry.comment = value.text(); }},
                        {"max", [&](const JsonValue& value) { storeMax(value, entry); }}});
  if (entry.key.empty() || entry.text.empty()) object.fail("the entry needs a \"key\" and a \"text\"");
  return entry;
}

/// Reads the lines of entries.json and adds what is wrong with each to `diagnostics`.
std::vector<Entry> readEntries(std::string_view json, bool toleratesCommas, Diagnostics& diagnostics) {
  const auto fail = [&](Position at, std::string message) {
    diagnostics.push_back({Severity::error, kFile, at.line, at.column, "", std::move(message)});
  };
  diagnostics = mergeConflictsIn(json, kFile);
  if (!diagnostics.empty()) return {};
  const std::vector<std::string_view> lines = linesOf(json);
  if (lines.size() < 2 || lines.front() != "[" || lines.back() != "]") {
    fail({1, 1}, "the file is not a list of entries; write \"[\", one entry per line, \"]\"");
    return {};
  }
  std::vector<Entry> entries;
  for (std::size_t number = 2; number < lines.size(); ++number) {
    std::string_view line = lines[number - 1];
    const bool isLast = number + 1 == lines.size();
    const bool hasComma = line.ends_with(',');
    if (hasComma) line.remove_suffix(1);
    if (hasComma == isLast && !toleratesCommas) {
      fail({number, positionOf(line, line.size()).column},
           isLast ? "a comma after the last entry; remove it" : "no comma after the entry; add one");
    }
    try {
      entries.push_back(entryFrom(line, number));
    } catch (const CommandFailed& failed) {
      diagnostics.push_back(failed.diagnostics.front());
    }
  }
  return entries;
}

void checkEntry(const Entry& entry, Diagnostics& diagnostics) {
  const auto fail = [&](std::string message) {
    diagnostics.push_back({Severity::error, kFile, entry.line, 1, "", std::move(message)});
  };
  const std::string ruled = keyForText(entry.text);
  if (entry.kept == Entry::Kept::nothing && entry.key != ruled) {
    fail(fmt::format(
        "the key \"{}\" does not match its text; if you changed the text, run zkstrings generate; "
        "if the text is new, its key is \"{}\"",
        entry.key, ruled));
  }
  if (entry.kept == Entry::Kept::key && entry.key == ruled) {
    fail(fmt::format("the key \"{}\" matches its text; remove \"kept\"", entry.key));
  }
  if (identifierFor(entry.key).empty()) {
    fail(fmt::format("the key \"{}\" is not a valid function name; add a letter or digit", entry.key));
  }
  if (hasCarriageReturnOrNul(entry.key) || hasCarriageReturnOrNul(entry.text)) fail(kNoCarriageReturn);
  // The comment is copied into comments of C++ and of tables.
  if (findControlCharacter(entry.comment) != std::string::npos ||
      entry.comment.find_first_of("\n\t\\") != std::string::npos ||
      entry.comment.find("*/") != std::string::npos) {
    fail("the comment has a line break, a tab, a backslash or \"*/\"; write one line without them");
  }
  std::set<std::string_view> seen;
  for (const std::string_view name : placeholderNames(entry.text)) {
    if (keyForText(name) != name || name.find('_') != std::string_view::npos) {
      fail(fmt::format("the placeholder \"%{{{}}}\" is not a valid argument name; use letters and digits",
                       name));
    }
    if (!seen.insert(name).second) {
      fail(fmt::format("the placeholder \"%{{{}}}\" occurs twice in one text; rename the second", name));
    }
  }
  for (const PlaceholderUse& use : placeholderUses(entry.text)) {
    if (use.isRight || !use.spelled.starts_with("%{")) continue;
    fail(fmt::format("\"{}\" is not a placeholder; write %{{name}}, with letters and digits in the braces",
                     use.spelled));
  }
  for (const std::optional<std::string>& given : entry.forms) {
    if (!given) continue;
    const std::string& form = *given;
    if (hasCarriageReturnOrNul(form)) fail(kNoCarriageReturn);
    for (const std::string_view name : placeholderNames(form)) {
      if (seen.contains(name)) continue;
      fail(fmt::format("the form \"{}\" has the placeholder \"%{{{}}}\", which is not in the text; remove it",
                       escaped(form), name));
    }
  }
  if (entry.plural && seen.contains("count")) {
    fail("\"%{count}\" clashes with the argument for the count; rename the placeholder");
  }
}

/// The name and the arguments of the accessor. C++ takes two accessors with the same ones for one function.
std::string signatureOf(const Entry& entry) {
  return fmt::format("{}({}{})", identifierFor(entry.key), placeholderNames(entry.text).size(),
                     entry.plural ? ", count" : "");
}

/// Throws if `diagnostics` or the entries, each by itself or together, have errors.
void checkEntries(const std::vector<Entry>& entries, Diagnostics diagnostics) {
  for (const Entry& entry : entries) checkEntry(entry, diagnostics);
  std::map<std::string, const Entry*> accessors;
  std::map<std::string_view, const Entry*> texts;
  std::map<std::string, const Entry*> inTables;
  const Entry* previous = nullptr;
  for (const Entry& entry : entries) {
    const auto fail = [&](std::string message) {
      diagnostics.push_back({Severity::error, kFile, entry.line, 1, "", std::move(message)});
    };
    const auto [same, isNew] = accessors.try_emplace(signatureOf(entry), &entry);
    const auto [first, isFirst] = texts.try_emplace(entry.key, &entry);
    if (!isFirst && first->second->text != entry.text) {
      fail(fmt::format(
          "the key \"{}\" has a different text on line {}; keep one of the two, or make them equal",
          entry.key, first->second->line));
    } else if (!isNew) {
      fail(fmt::format("the accessor \"{}\" is already on line {}; keep one of the two",
                       identifierFor(entry.key), same->second->line));
    }
    for (const std::string& key : entry.lookedUpKeys()) {
      const Entry& other = *inTables.try_emplace(key, &entry).first->second;
      if (other.key == entry.key) continue;
      fail(fmt::format("\"{}\" and \"{}\" on line {} share the key \"{}\" in the tables; change one of them",
                       entry.key, other.key, other.line, key));
    }
    if (entry.kept == Entry::Kept::place) continue;
    if (previous && lowerCased(entry.key) < lowerCased(previous->key)) {
      fail(fmt::format("the key \"{}\" is out of order; move it before \"{}\" (case is ignored)", entry.key,
                       previous->key));
    } else {
      previous = &entry;
    }
  }
  if (!diagnostics.empty()) throw CommandFailed{std::move(diagnostics)};
}

std::string quoted(const std::string& text) {
  return nlohmann::json(text).dump();
}

/// The forms that differ from the text: {"one": "%{n} coin"}, or true if none does.
std::string formsOf(const Entry& entry) {
  std::vector<std::string> members;
  for (std::size_t i = 0; i < entry.forms.size(); ++i) {
    const std::string form = entry.forms[i].value_or(entry.text);
    if (form != entry.text)
      members.push_back(fmt::format("\"{}\": {}", kPluralForms[i].suffix.substr(1), quoted(form)));
  }
  return members.empty() ? "true" : fmt::format("{{{}}}", fmt::join(members, ", "));
}

/// The entry as a line of the file, without a comma.
std::string lineOf(const Entry& entry) {
  std::string line = fmt::format("  {{\"key\": {}, \"text\": {}", quoted(entry.key), quoted(entry.text));
  if (entry.plural) line += ", \"plural\": " + formsOf(entry);
  for (const auto& [kept, name] : kKeptNames) {
    if (entry.kept == kept) line += fmt::format(", \"kept\": \"{}\"", name);
  }
  if (!entry.comment.empty()) line += ", \"comment\": " + quoted(entry.comment);
  if (entry.max > 0) line += fmt::format(", \"max\": {}", entry.max);
  return line + "}";
}

}  // namespace

std::string Entry::context() const {
  if (max == 0) return comment;
  const std::string limit = fmt::format("At most {} characters.", max);
  if (comment.empty()) return limit;
  return comment + (std::string_view(".!?").find(comment.back()) == std::string_view::npos ? ". " : " ") +
         limit;
}

std::vector<std::string> Entry::lookedUpKeys() const {
  if (!plural) return {key};
  std::vector<std::string> keys;
  for (const PluralForm& form : kPluralForms) keys.push_back(key + std::string(form.suffix));
  return keys;
}

Catalogue Catalogue::read(const std::string& root) {
  Catalogue catalogue = parse(readFile(root, kFile));
  catalogue.settings_ = CatalogueSettings::read(root);
  return catalogue;
}

Catalogue Catalogue::parse(std::string_view json) {
  Diagnostics diagnostics;
  Catalogue catalogue;
  catalogue.entries_ = readEntries(json, false, diagnostics);
  checkEntries(catalogue.entries_, std::move(diagnostics));
  return catalogue;
}

Catalogue Catalogue::readEdited(const std::string& root, const std::function<bool(const Entry&)>& isKnown) {
  Diagnostics diagnostics;
  Catalogue catalogue;
  catalogue.entries_ = readEntries(readFile(root, kFile), true, diagnostics);
  catalogue.settings_ = CatalogueSettings::read(root);
  catalogue.sort();
  std::set<std::string> seen;
  std::erase_if(catalogue.entries_, [&](const Entry& entry) { return !seen.insert(lineOf(entry)).second; });
  for (Entry& entry : catalogue.entries_)
    if (isKnown(entry)) keepKeyIfNeeded(entry);
  checkEntries(catalogue.entries_, std::move(diagnostics));
  return catalogue;
}

std::string Catalogue::errorIn(const Entry& entry) {
  Diagnostics diagnostics;
  checkEntry(entry, diagnostics);
  return diagnostics.empty() ? "" : diagnostics.front().message;
}

void Catalogue::sort() {
  std::vector<std::pair<std::string, Entry>> sorted;
  std::string rank;
  for (Entry& entry : entries_) {
    if (entry.kept != Entry::Kept::place) rank = lowerCased(entry.key);
    sorted.emplace_back(rank, std::move(entry));
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  entries_.clear();
  for (auto& [key, entry] : sorted) entries_.push_back(std::move(entry));
}

std::string Catalogue::toJson() const {
  std::string json = "[\n";
  for (const Entry& entry : entries_) json += lineOf(entry) + (&entry == &entries_.back() ? "\n" : ",\n");
  return json + "]\n";
}

void keepKeyIfNeeded(Entry& entry) {
  if (entry.kept == Entry::Kept::place) return;
  entry.kept = entry.key == keyForText(entry.text) ? Entry::Kept::nothing : Entry::Kept::key;
}

}  // namespace zk::tools
