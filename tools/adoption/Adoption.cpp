#include <ZKStrings/tools/adoption/AdoptedTexts.h>
#include <ZKStrings/tools/adoption/Adoption.h>
#include <ZKStrings/tools/authoring/CatalogueFiles.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <optional>
#include <system_error>
#include <tuple>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

namespace fs = std::filesystem;

/// A table of the other app.
struct ForeignTable {
  std::string language;  ///< the name of the directory that it gets
  std::string file;
};

using Lines = std::map<std::string, std::string>;

/// What becomes of the directory "xx.lproj" of the other app: its two-letter code, or why it is left out.
std::pair<std::string, std::string> languageFor(const std::string& directory) {
  const std::string code = languageCodeOf(directory);
  if (code == "en" || directory == kBase)
    return {"", "English comes from the table that was named; left out"};
  if (code.size() != 2 || !whyNeverChosen(code).empty())
    return {"", fmt::format("\"{}\" means no language with a code of two letters; left out", directory)};
  return {code, ""};
}

/// The tables for other languages beside the English `file`, sorted by their directories, so that "pt" comes
/// before "pt-BR".
std::vector<ForeignTable> translationsBeside(const std::string& file, Faults& remarks) {
  const fs::path english = fs::absolute(file).lexically_normal();
  std::vector<ForeignTable> tables;
  if (english.parent_path().extension() != ".lproj") return tables;
  std::vector<fs::path> directories;
  std::error_code failure;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(english.parent_path().parent_path(), failure)) {
    const bool isOther = entry.path().extension() == ".lproj" && entry.path() != english.parent_path();
    if (isOther) directories.push_back(entry.path());
  }
  std::sort(directories.begin(), directories.end(),
            [](const fs::path& one, const fs::path& other) { return one.stem() < other.stem(); });
  for (const fs::path& directory : directories) {
    const fs::path table = directory / english.filename();
    if (!fs::exists(table, failure) &&
        !fs::exists(fs::path(table).replace_extension(".stringsdict"), failure))
      continue;
    auto [language, reason] = languageFor(directory.stem().string());
    const auto isSame = [&, code = language](const ForeignTable& other) { return other.language == code; };
    if (reason.empty() && std::any_of(tables.begin(), tables.end(), isSame))
      reason = fmt::format("the language \"{}\" has come from another directory already; left out", language);
    if (reason.empty()) {
      tables.push_back({language, table.string()});
    } else {
      remarks.push_back({Severity::warning, table.string(), 1, 1, "", reason});
    }
  }
  return tables;
}

bool goesBefore(const Entry& one, const Entry& other) {
  return std::tuple(lowerCased(one.key), one.key, one.plural) <
         std::tuple(lowerCased(other.key), other.key, other.plural);
}

/// The entries of `catalogue` and the new ones, each at its place.
void insertAll(Catalogue& catalogue, std::vector<Entry> added) {
  std::sort(added.begin(), added.end(), goesBefore);
  std::vector<Entry> merged;
  auto next = added.begin();
  for (Entry& present : catalogue.entries()) {
    const bool isPlaced = present.kept != Entry::Kept::place;
    while (isPlaced && next != added.end() && goesBefore(*next, present))
      merged.push_back(std::move(*next++));
    merged.push_back(std::move(present));
  }
  std::move(next, added.end(), std::back_inserter(merged));
  catalogue.entries() = std::move(merged);
}

/// The table of `language` with `lines` at their places: the one of the project, or a new one.
FileChange tableWith(const std::string& root, const std::string& language, const Catalogue& catalogue,
                     const Lines& lines) {
  std::error_code failure;
  const std::string path = tablePath(language);
  const bool isThere = fs::exists(fs::path(root) / path, failure);
  TableEditor editor(isThere ? readFile(root, path) : "", path);
  if (!editor.table().faults.empty()) throw CommandFailed{editor.table().faults};
  const TableEntry* before = nullptr;
  std::string pending;
  const auto insertPending = [&] {
    if (!pending.empty()) editor.insertBehind(before, std::exchange(pending, ""));
  };
  for (const Catalogue::LookedUpKey& key : catalogue.lookedUpKeys()) {
    if (const TableEntry* const present = editor.table().find(key.key)) {
      insertPending();
      before = present;
    } else if (const auto line = lines.find(key.key); line != lines.end()) {
      pending += line->second;
    }
  }
  insertPending();
  return {path, editor.edited()};
}

Lines linesOfAll(const ForeignTexts& texts, AdoptedTexts& adopted) {
  Lines lines;
  for (const ForeignEntry& entry : texts.entries) lines.merge(adopted.linesFor(entry));
  return lines;
}

/// Lists the texts for which there is no English one, or none that could be brought along.
void remarkOnStrangers(const ForeignTexts& texts, const AdoptedTexts& adopted, Faults& remarks) {
  for (const ForeignEntry& entry : texts.entries) {
    if (adopted.has(entry.key)) continue;
    const ForeignText& text = entry.forms.begin()->second;
    remarks.push_back({Severity::warning, text.file, text.at.line, text.at.column, "",
                       fmt::format("no English text has come along for \"{}\"; left out", entry.key)});
  }
}

void append(Faults& faults, const Faults& others) {
  faults.insert(faults.end(), others.begin(), others.end());
}

}  // namespace

Adoption adopt(const std::string& root, const std::string& file) {
  Adoption adoption;
  Catalogue catalogue = Catalogue::read(root);
  AdoptedTexts adopted(catalogue, adoption.remarks);

  const ForeignTexts english = ForeignTexts::readSource(file);
  append(adoption.remarks, english.faults);
  std::vector<Entry> entries;
  for (const ForeignEntry& source : english.entries) {
    if (std::optional<Entry> entry = adopted.entryFor(source)) entries.push_back(*std::move(entry));
  }
  if (entries.empty()) {
    if (adoption.remarks.empty())
      adoption.remarks.push_back(
          {Severity::error, file, 1, 1, "", "the file has no texts; name a table that has"});
    adoption.remarks.front().severity = Severity::error;
    throw CommandFailed{adoption.remarks};
  }
  adoption.entries = entries.size();
  insertAll(catalogue, std::move(entries));

  const auto tableOf = [&](const std::string& language, const ForeignTexts& texts) {
    adoption.languages.push_back(language);
    return tableWith(root, language, catalogue, linesOfAll(texts, adopted));
  };
  const FileChange base = tableOf(std::string(kBase), english);
  std::vector<FileChange> translations;
  for (const ForeignTable& table : translationsBeside(file, adoption.remarks)) {
    const ForeignTexts texts = ForeignTexts::read(table.file, english.plurals());
    append(adoption.remarks, texts.faults);
    remarkOnStrangers(texts, adopted, adoption.remarks);
    translations.push_back(tableOf(table.language, texts));
  }
  writeCatalogue(root, catalogue, base.bytes, std::move(translations));
  return adoption;
}

}  // namespace zk::tools
