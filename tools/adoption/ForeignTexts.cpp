#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/adoption/ForeignTexts.h>
#include <ZKStrings/tools/adoption/PluralDictionary.h>
#include <ZKStrings/tools/project/Table.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

namespace zk::tools {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kForms[] = {"zero", "one", "two", "few", "many", "other"};

/// A key that ends in the name of a plural form.
struct FormKey {
  std::string base;
  std::string_view form;
};

std::optional<FormKey> formKeyOf(std::string_view key) {
  const std::size_t mark = key.find_last_of("_.");
  if (mark == key.npos || mark == 0) return std::nullopt;
  const std::string_view name = key.substr(mark + 1);
  const auto* const form = std::find(std::begin(kForms), std::end(kForms), name);
  if (form == std::end(kForms)) return std::nullopt;
  return FormKey{std::string(key.substr(0, mark)), *form};
}

/// The keys of `table` that have plural forms in it.
std::set<std::string> pluralsIn(const Table& table) {
  std::map<std::string, std::set<std::string_view>> forms;
  for (const TableEntry& entry : table.entries) {
    if (const auto key = formKeyOf(entry.key)) forms[key->base].insert(key->form);
  }
  std::set<std::string> plurals;
  for (const auto& [base, names] : forms) {
    if (names.contains("one") && (names.contains("other") || names.contains("many"))) plurals.insert(base);
  }
  return plurals;
}

/// The text of `file` in UTF-8, its lines ended by "\n"; nothing, with a fault, when it cannot be read.
std::optional<std::string> textOf(const std::string& file, Faults& faults) {
  const auto fail = [&](const char* message) {
    faults.push_back({Severity::warning, file, 1, 1, "", message});
    return std::nullopt;
  };
  std::optional<std::string> bytes = contentsOfFile(file);
  if (!bytes) return fail("the file cannot be read; see that it exists, is a file and may be read");
  if (bytes->starts_with("bplist")) return fail("the file is compiled; bring along the one it was made of");
  std::optional<std::string> text = decodedText(*std::move(bytes), UnmarkedText::mayBeUtf16Or32);
  if (!text) return fail("the bytes are no text in UTF-8 or UTF-16; save the file as UTF-8");
  replaceOccurrences(*text, "\r\n", "\n");
  replaceOccurrences(*text, "\r", "\n");
  return text;
}

/// The comments in a part of a table that has no entry.
std::vector<std::string> commentsIn(std::string_view part) {
  StringTableReader reader(part);
  static_cast<void>(reader.next());
  std::vector<std::string> comments;
  for (const StringTableReader::Token& comment : reader.comments())
    comments.emplace_back(part.substr(comment.begin, comment.end - comment.begin));
  return comments;
}

/// Puts texts together by key.
class Collector {
 public:
  explicit Collector(ForeignTexts& texts) : texts_(texts) {}

  ForeignEntry& entryOf(const std::string& key, bool isPlural) {
    const auto [place, isNew] = places_.try_emplace({key, isPlural}, texts_.entries.size());
    if (isNew) texts_.entries.push_back({key});
    return texts_.entries[place->second];
  }

  void add(const Table& table, std::string_view bytes, const std::set<std::string>& plurals) {
    for (const TableEntry& entry : table.entries) {
      ForeignText text{entry.text, table.file, entry.keyAt};
      for (const TableEntry::Comment& comment : entry.comments) text.comments.push_back(comment.text);
      const std::size_t end = endOfLine(bytes, entry);
      for (std::string& comment : commentsIn(bytes.substr(entry.span.end, end - entry.span.end)))
        text.comments.push_back(std::move(comment));
      const std::optional<FormKey> formKey = formKeyOf(entry.key);
      const bool isForm = formKey && plurals.contains(formKey->base);
      ForeignEntry& group = entryOf(isForm ? formKey->base : entry.key, isForm);
      ForeignText& present = group.forms[isForm ? std::string(formKey->form) : std::string()];
      if (!present.file.empty())
        texts_.faults.push_back({Severity::warning, table.file, present.at.line, present.at.column, "",
                                 "the key stands again further down, and only the last one counts"});
      present = std::move(text);
    }
    remarkOnLastComments(table, bytes);
  }

  /// Texts of a dictionary replace those of a table, as they do in an app. Their comments stay.
  void add(std::vector<ForeignEntry> entries) {
    for (ForeignEntry& entry : entries) {
      std::vector<std::string> comments;
      for (const bool isPlural : {false, true}) {
        if (const auto present = places_.find({entry.key, isPlural}); present != places_.end())
          takeAway(texts_.entries[present->second], comments);
      }
      entry.forms.begin()->second.comments = std::move(comments);
      entryOf(entry.key, entry.isPlural()).forms = std::move(entry.forms);
    }
    std::erase_if(texts_.entries, [](const ForeignEntry& entry) { return entry.forms.empty(); });
  }

 private:
  void remarkOnLastComments(const Table& table, std::string_view bytes) {
    const std::size_t end = table.entries.empty() ? 0 : endOfLine(bytes, table.entries.back());
    if (commentsIn(bytes.substr(end)).empty()) return;
    const Position at = positionOf(bytes, bytes.find('/', end));
    texts_.faults.push_back({Severity::note, table.file, at.line, at.column, "",
                             "the comments from here on belong to no text; left out"});
  }

  /// Takes the texts of `entry` away, and adds their comments to `comments`.
  void takeAway(ForeignEntry& entry, std::vector<std::string>& comments) {
    for (auto& [name, text] : entry.forms) {
      std::move(text.comments.begin(), text.comments.end(), std::back_inserter(comments));
      texts_.faults.push_back(
          {Severity::note, text.file, text.at.line, text.at.column, "",
           "the key stands in the .stringsdict file as well, and only the last one there counts"});
    }
    entry.forms.clear();
  }

  ForeignTexts& texts_;
  std::map<std::pair<std::string, bool>, std::size_t> places_;
};

ForeignTexts readFiles(const std::string& file,
                       const std::function<std::set<std::string>(const Table&)>& pluralsOf) {
  ForeignTexts texts;
  Collector collector(texts);
  std::error_code failure;
  const std::string dictionary = fs::path(file).replace_extension(".stringsdict").string();
  const bool hasDictionary = fs::exists(dictionary, failure);
  if (fs::exists(file, failure) || !hasDictionary) {
    if (const std::optional<std::string> text = textOf(file, texts.faults)) {
      const Table table = Table::parse(*text, file);
      for (Fault fault : table.faults) {
        fault.severity = Severity::warning;
        texts.faults.push_back(std::move(fault));
      }
      collector.add(table, *text, pluralsOf(table));
    }
  }
  if (!hasDictionary) return texts;
  if (const std::optional<std::string> text = textOf(dictionary, texts.faults))
    collector.add(readPluralDictionary(*text, dictionary, texts.faults));
  return texts;
}

}  // namespace

ForeignTexts ForeignTexts::read(const std::string& file, const std::set<std::string>& plurals) {
  return readFiles(file, [&](const Table&) { return plurals; });
}

ForeignTexts ForeignTexts::readSource(const std::string& file) {
  return readFiles(file, pluralsIn);
}

std::set<std::string> ForeignTexts::plurals() const {
  std::set<std::string> keys;
  for (const ForeignEntry& entry : entries) {
    if (entry.isPlural()) keys.insert(entry.key);
  }
  return keys;
}

}  // namespace zk::tools
