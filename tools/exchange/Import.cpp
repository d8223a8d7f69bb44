#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/exchange/Import.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TableEditor.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

class Importer {
 public:
  Importer(const std::string& root, const Translations& translations, const std::string& file, bool force)
      : root_(root),
        translations_(translations),
        file_(file),
        force_(force),
        catalogue_(Catalogue::read(root)),
        base_(Table::readWellFormed(root, kBase)),
        english_(catalogue_, base_),
        editor_(TableEditor::open(root, translations.language)) {}

  Import run() && {
    result_.language = translations_.language;
    for (const TranslationUnit& unit : translations_.units) accept(unit);
    const TableEntry* before = nullptr;
    for (const EnglishText& text : english_.all()) {
      const TableEntry* const entry = editor_.table().find(text.key);
      if (const auto taken = taken_.find(text.key); taken != taken_.end())
        bringIn(taken->second, text, entry, before);
      if (entry) before = entry;
    }
    write();
    return std::move(result_);
  }

 private:
  /// A unit that goes into the table.
  struct Taken {
    const TranslationUnit* unit;
    TranslationState state;
  };

  void report(Severity severity, const TranslationUnit& unit, std::string message, std::string rule = "") {
    result_.diagnostics.push_back(
        {severity, file_, unit.at.line, unit.at.column, std::move(rule), std::move(message)});
  }

  void refuse(const TranslationUnit& unit, std::string reason) {
    report(Severity::warning, unit, std::move(reason));
    ++result_.refused;
  }

  void accept(const TranslationUnit& unit) {
    const EnglishText* const english = english_.find(unit.key);
    if (!english) {
      return refuse(unit,
                    fmt::format("nothing looks up the key \"{}\"; the text was left out", escaped(unit.key)));
    }
    if (isBlank(unit.target)) return noteMissing(unit);
    const bool isOutdated = unit.source != english->text;
    if (isOutdated && !force_) {
      return refuse(unit, fmt::format("the English of \"{}\" is now \"{}\", no longer \"{}\"; see that the "
                                      "translation still fits, then import with --force",
                                      escaped(unit.key), escaped(english->text), escaped(unit.source)));
    }
    const TranslationState state = isOutdated ? TranslationState::needsReview : unit.state;
    if (!taken_.emplace(english->key, Taken{&unit, state}).second)
      refuse(unit, fmt::format("the key \"{}\" stands twice in the file; the first text counts",
                               escaped(unit.key)));
  }

  /// What a file does not translate stays; where the table does, somebody may have meant to remove it.
  void noteMissing(const TranslationUnit& unit) {
    const TableEntry* const entry = editor_.table().find(unit.key);
    const TranslationState state = stateOf(translations_.language, entry, *english_.find(unit.key));
    if (state != TranslationState::translated || isBlank(entry->text)) return;
    report(Severity::note, unit,
           fmt::format("\"{}\" has no translation here; the table's was kept", escaped(unit.key)));
  }

  void bringIn(const Taken& taken, const EnglishText& english, const TableEntry* entry,
               const TableEntry* before) {
    const std::string& text = taken.unit->target;
    const bool isReview = taken.state == TranslationState::needsReview;
    if (!entry) {
      const std::string mark = isReview ? markFor(taken.state) + "\n" : "";
      editor_.insertBehind(before, mark + tableLine(english.key, text));
      ++result_.added;
      return;
    }
    const bool isSameText = entry->text == text;
    const bool hasMark =
        isMarked(*entry, TranslationState::untranslated) || isMarked(*entry, TranslationState::needsReview);
    const bool isSameState =
        stateOf(translations_.language, entry, english) == taken.state || !(isReview || hasMark);
    if (isSameText && isSameState) {
      ++result_.unchanged;
      taken_.erase(english.key);
      return;
    }
    if (!isSameText) editor_.replaceText(*entry, text);
    if (isReview || hasMark) editor_.setState(*entry, taken.state);
    ++(isSameText ? result_.marked : result_.changed);
  }

  void write() {
    if (!editor_.hasEdits()) return;
    const std::string bytes = editor_.edited();
    refuseErrors(Table::parse(bytes, editor_.table().file));
    writeFile(root_, editor_.table().file, bytes);
  }

  /// Throws the errors in what was taken; other findings there are reported.
  void refuseErrors(const Table& table) {
    for (const Diagnostic& diagnostic : checkTable(translations_.language, table, catalogue_, base_)) {
      if (diagnostic.severity > Severity::warning) continue;
      const TableEntry* const entry = table.entryAt({diagnostic.line, diagnostic.column});
      if (!entry) continue;
      const auto taken = taken_.find(entry->key);
      if (taken == taken_.end()) continue;
      report(diagnostic.severity, *taken->second.unit,
             fmt::format("\"{}\": {}", escaped(entry->key), diagnostic.message), diagnostic.rule);
    }
    const auto isError = [](const Diagnostic& diagnostic) { return diagnostic.severity == Severity::error; };
    if (std::none_of(result_.diagnostics.begin(), result_.diagnostics.end(), isError)) return;
    result_.diagnostics.push_back({Severity::note, file_, 1, 1, "",
                                   "nothing was imported because of the errors; mend them and import again"});
    throw CommandFailed{std::move(result_.diagnostics)};
  }

  const std::string& root_;
  const Translations& translations_;
  const std::string& file_;
  const bool force_;
  const Catalogue catalogue_;
  const Table base_;
  const EnglishTexts english_;
  TableEditor editor_;
  std::map<std::string, Taken, std::less<>> taken_;  // by key
  Import result_;
};

}  // namespace

Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force) {
  if (translations.language == kBase)
    fail(file, "the English texts are not imported; change them in their table");
  return Importer(root, translations, file, force).run();
}

}  // namespace zk::tools
