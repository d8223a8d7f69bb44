#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/TableEditor.h>
#include <ZKStrings/tools/translation/TableUpdate.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The table of `language` with the keys and placeholders renamed as in `change`.
TableEditor changed(const std::string& root, const std::string& language, const TableChange& change) {
  TableEditor editor = TableEditor::open(root, language);
  for (const TableEntry& entry : editor.table().entries) {
    const auto renamed = change.renamed.find(entry.key);
    if (renamed == change.renamed.end()) continue;
    const std::string& key = renamed->second;
    if (key.empty()) {
      editor.remove(entry);
      continue;
    }
    if (key != entry.key && editor.table().find(key)) {
      fail(editor.table().file, entry.keyAt,
           fmt::format("the table has both \"{}\" and \"{}\"; remove the one that is not in the catalogue",
                       escaped(entry.key), escaped(key)));
    }
    if (key != entry.key) editor.replaceKey(entry, key);
    if (!change.oldPlaceholder.empty())
      editor.replacePlaceholder(entry, change.oldPlaceholder, change.newPlaceholder);
  }
  const std::string file = editor.table().file;
  return {editor.edited(), file};
}

/// The bytes of the English table after its update from the catalogue.
std::string syncedBase(TableEditor& base, const EnglishTexts& english) {
  const TableEntry* before = nullptr;
  for (const EnglishText& text : english.all()) {
    const bool isFirst = !text.form || text.form == kPluralForms;
    const std::string context = isFirst ? contextOf(text) : "";
    if (const TableEntry* const entry = base.table().find(text.key)) {
      if (entry->text != text.text) base.replaceText(*entry, text.text);
      base.setComment(*entry, kContext, context);
      before = entry;
    } else {
      base.insertAfter(before, context + (context.empty() ? "" : "\n") + tableLine(text.key, text.text));
    }
  }
  for (const TableEntry& entry : base.table().entries)
    if (!english.find(entry.key)) base.remove(entry);
  return TableEditor(base.edited(), base.table().file).sorted(english);
}

/// Reports keys that are twice in a table, with different texts.
void findUndecided(const Table& table, Diagnostics& diagnostics) {
  for (const TableEntry& entry : table.entries) {
    const TableEntry& last = *table.find(entry.key);
    if (last.text == entry.text) continue;
    diagnostics.push_back({Severity::error, table.file, entry.keyAt.line, entry.keyAt.column, "",
                           fmt::format("the key \"{}\" has a different text on line {}; keep one of the two",
                                       escaped(entry.key), last.keyAt.line)});
  }
}

constexpr const char* kEntries = R"([
  {"key": "Hello_name", "text": "Hello, %{name}!"},
  {"key": "messages_new_messages", "text": "%{messages} new messages", )"
                                 R"("plural": {"zero": "No new messages", "one": "%{messages} new message"}}
]
)";

constexpr const char* kEnglish = R"(/* English, the language that all others are translated from. */

"Hello_name" = "Hello, %{name}!";
"messages_new_messages_zero" = "No new messages";
"messages_new_messages_one" = "%{messages} new message";
"messages_new_messages_two" = "%{messages} new messages";
"messages_new_messages_few" = "%{messages} new messages";
"messages_new_messages_many" = "%{messages} new messages";
)";

constexpr const char* kReadme = R"(# {name}

The texts of the program. `catalogue/entries.json` has the English texts; `resources/` has a table for each language.

    zkstrings add 'Bye, %{{name}}!'                            adds a text: {call}Bye_name(name)
    zkstrings add --count '%{{n}} stars' --one '%{{n}} star'     adds a text with plural forms
    zkstrings template de                                    creates the table of a language, here German
    zkstrings check                                          reports errors and gaps in the tables
    zkstrings generate                                       updates everything after an edit of entries.json or a merge

In CMake, `zk_add_catalogue(TARGET {target} ROOT <this folder>)` creates a library with the functions.
)";

std::string readmeFor(const CatalogueName& name) {
  const std::string scope = name.nameSpace.empty() ? "" : name.nameSpace + "::";
  return fmt::format(fmt::runtime(kReadme), fmt::arg("name", name.name),
                     fmt::arg("target", lowerCased(name.name)), fmt::arg("call", scope + name.name + "::"));
}

}  // namespace

std::size_t writeCatalogue(const std::string& root, const Catalogue& catalogue, const TableChange& change) {
  std::string json = catalogue.toJson();
  static_cast<void>(Catalogue::parse(json));  // throws if it breaks a rule
  TableEditor base = changed(root, std::string(kBase), change);
  const EnglishTexts english(catalogue);
  std::vector<FileChange> files;
  Diagnostics undecided;
  std::size_t marked = 0;
  for (const std::string& language : languagesIn(root)) {
    if (language == kBase) continue;
    TableEditor editor = changed(root, language, change);
    if (change.sorts) findUndecided(editor.table(), undecided);
    marked += markChanged(editor, english, base.table(), change.keepsMeaning, change.reviewed);
    std::string bytes = editor.edited();
    if (change.sorts) bytes = TableEditor(bytes, editor.table().file).sorted(english);
    if (bytes != readFile(root, editor.table().file))
      files.push_back({editor.table().file, std::move(bytes)});
  }
  if (!undecided.empty()) throw CommandFailed{std::move(undecided)};

  // If the command is interrupted, the next call finishes its work, because translations change before the English texts.
  files.push_back({tablePath(kBase), syncedBase(base, english)});
  const CatalogueName& name = catalogue.settings().name;
  // Another catalogue than the module's may leave its accessors to the build.
  const bool keepsAccessors = name.isModule() || pathExists(pathBelow(root, name.headerFile()));
  if (change.generates || keepsAccessors) {
    std::ranges::move(generateAccessors(catalogue), std::back_inserter(files));
  }
  files.push_back({Catalogue::kFile, std::move(json)});
  writeFiles(root, files);
  return marked;
}

std::size_t generate(const std::string& root) {
  const Table base = Table::readWellFormed(root, kBase);
  TableChange change{.sorts = true, .generates = true};
  const auto isKnown = [&](const Entry& entry) {
    const std::vector<std::string> keys = entry.lookedUpKeys();
    if (!base.find(keys.front())) return false;
    if (entry.kept != Entry::Kept::nothing || entry.key == keyForText(entry.text)) return true;
    // The text was changed by hand, perhaps in the English table, too.
    std::copy_if(
        keys.begin(), keys.end(), std::inserter(change.reviewed, change.reviewed.end()),
        [&](const std::string& key) { return base.find(key) && base.find(key)->text == entry.text; });
    return true;
  };
  return writeCatalogue(root, Catalogue::readEdited(root, isKnown), change);
}

void generateInto(const std::string& output, const std::string& root) {
  const Catalogue catalogue = Catalogue::read(root);
  const Table base = Table::readWellFormed(root, kBase);
  const EnglishTexts english(catalogue);
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = base.find(text.key);
    if (!entry || entry->text == text.text) continue;
    fail(base.file, entry->textAt,
         fmt::format("the English text of \"{}\" differs from {}; run zkstrings generate", escaped(text.key),
                     Catalogue::kFile));
  }
  std::vector<FileChange> files = generateAccessors(catalogue);
  for (FileChange& file : files)
    file.path = absolutePath(pathBelow(output, file.path.substr(file.path.rfind('/') + 1)));
  writeFiles("", files);
}

void initCatalogue(const std::string& directory, const CatalogueName& name) {
  if (name.name == CatalogueName::kModule)
    throw std::invalid_argument(
        fmt::format("the name {} is reserved for the module; choose another", name.name));
  if (const std::string error = name.error(); !error.empty()) throw std::invalid_argument(error);
  const std::string settings =
      fmt::format("{{\"name\": \"{}\", \"namespace\": \"{}\"}}\n", name.name, name.nameSpace);
  const std::vector<FileChange> files = {{CatalogueSettings::kFile, settings},
                                         {tablePath(kBase), kEnglish},
                                         {"README.md", readmeFor(name)},
                                         {Catalogue::kFile, kEntries}};
  lockProject(directory);
  for (const FileChange& file : files) {
    const std::string path = pathBelow(directory, file.path);
    // A command that was killed leaves files with these contents.
    if (pathExists(path) && contentsOfFile(path) != file.bytes)
      fail(path, "the file already exists; use another folder for a new catalogue");
  }
  writeFiles(directory, files);
}

}  // namespace zk::tools
