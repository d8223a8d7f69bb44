#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/exchange/Exchange.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TableEditor.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

/// The notes for a translator who sees only `english`.
std::vector<std::string> notesOn(const EnglishText& english) {
  std::vector<std::string> notes;
  if (std::string context = english.entry->context(); !context.empty()) notes.push_back(std::move(context));
  if (const PluralForm* const form = english.form)
    notes.push_back(fmt::format("The plural form {} is used for {}. It must be right for every such number.",
                                form->suffix, form->counts));
  if (const std::vector<std::string_view> names = english.placeholders(); !names.empty())
    notes.push_back(
        fmt::format("The app fills in %{{{}}}. Copy placeholders exactly.", fmt::join(names, "}, %{")));
  if (const std::string_view name = english.optionalPlaceholder(); !name.empty())
    notes.back() += fmt::format(" %{{{}}} may be omitted if the text spells the number out.", name);
  const std::vector<TextPiece> pieces = piecesOf(english.text);
  if (std::any_of(pieces.begin(), pieces.end(),
                  [](const TextPiece& piece) { return piece.kind == TextPiece::Kind::opening; }))
    notes.emplace_back("Words between <b> and </b> are bold; words between two * are emphasised.");
  notes.push_back(fmt::format("The English text has {} characters.", lengthOf(english.text)));
  return notes;
}

}  // namespace

Translations translationsOf(const std::string& root, const std::string& language, bool onlyOpen,
                            const std::vector<std::string>& sources) {
  if (language == kBase)
    throw std::invalid_argument("the English texts are not translated; name the language to translate into");
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue);
  const Uses uses(sources, catalogue);
  const Table table = Table::readWellFormed(root, language);
  Translations translations{language, {}, catalogue.settings().name.name};
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = table.find(text.key);
    const TranslationState state = stateOf(language, entry, text);
    if (onlyOpen && state == TranslationState::translated) continue;
    const std::string translation(translationIn(entry, state));
    std::vector<std::string> notes = notesOn(text);
    if (std::string places = uses.noteOn(*text.entry); !places.empty()) notes.push_back(std::move(places));
    notes.push_back(versionNote(translation, state));
    const bool needsReview = state == TranslationState::needsReview;
    translations.units.push_back({text.key, text.text, translation, state,
                                  fmt::format("{}", fmt::join(notes, "\n")),
                                  needsReview ? quotedIn(*entry, kState).value_or("") : ""});
  }
  return translations;
}

std::string_view translationIn(const TableEntry* entry, TranslationState state) {
  const bool isTranslated = state == TranslationState::needsReview || state == TranslationState::translated;
  return isTranslated ? std::string_view(entry->text) : "";
}

std::string versionNote(std::string_view translation, TranslationState state) {
  const std::string version = translation.empty() ? "" : fmt::format("{}\n{}", translation, nameOf(state));
  std::uint32_t fingerprint = 2166136261U;  // by FNV-1a
  for (const char character : version)
    fingerprint = (fingerprint ^ static_cast<unsigned char>(character)) * 16777619U;
  return fmt::format("{}{:08x}", kVersionNote, fingerprint);
}

namespace {

/// A text and its state, for messages.
std::string shown(std::string_view text, TranslationState state) {
  if (text.empty()) return "no translation";
  const bool isTranslated = state == TranslationState::translated;
  return fmt::format("\"{}\"{}", escaped(text), isTranslated ? "" : fmt::format(" ({})", nameOf(state)));
}

/// Whether the unit's notes have another version of the text than `version`. Programs may drop the notes.
bool hasOtherVersion(const TranslationUnit& unit, std::string_view version) {
  const std::size_t at = unit.notes.find(kVersionNote);
  return at != std::string::npos && !std::string_view(unit.notes).substr(at).starts_with(version);
}

class Importer {
 public:
  Importer(const std::string& root, const Translations& translations, const std::string& file, bool force)
      : root_(root),
        language_(translations.language),
        file_(file),
        force_(force),
        catalogue_(Catalogue::read(root)),
        english_(catalogue_),
        editor_(TableEditor::open(root, language_)) {
    for (const TranslationUnit& unit : translations.units) accept(unit);
  }

  Import run() && {
    const TableEntry* before = nullptr;
    for (const EnglishText& text : english_.all()) {
      const TableEntry* const entry = editor_.table().find(text.key);
      if (const auto unit = units_.find(text.key); unit != units_.end())
        importUnit(*unit->second, text, entry, before);
      if (entry) before = entry;
    }
    write();
    return std::move(result_);
  }

 private:
  void report(Severity severity, const TranslationUnit& unit, std::string message, std::string rule = "") {
    result_.diagnostics.push_back(
        {severity, file_, unit.at.line, unit.at.column, std::move(rule), std::move(message)});
  }

  void refuse(const TranslationUnit& unit, std::string reason) {
    report(Severity::warning, unit, std::move(reason));
    ++result_.refused;
  }

  void accept(const TranslationUnit& unit) {
    if (!english_.find(unit.key)) {
      refuse(unit, fmt::format("unknown key \"{}\"; the text is not imported", escaped(unit.key)));
    } else if (!units_.emplace(unit.key, &unit).second) {
      refuse(unit, fmt::format("duplicate key \"{}\"; only the first text is imported", escaped(unit.key)));
    }
  }

  void importUnit(const TranslationUnit& unit, const EnglishText& english, const TableEntry* entry,
                  const TableEntry* before) {
    const TranslationState present = stateOf(language_, entry, english);
    if (isBlank(unit.target)) {
      if (present == TranslationState::translated && !isBlank(entry->text))
        report(Severity::note, unit,
               fmt::format("\"{}\" has no translation in this file; the table's translation is kept",
                           escaped(unit.key)));
      return;
    }
    const bool isOutdated = unit.source != english.text;
    const TranslationState state = isOutdated && force_ ? TranslationState::needsReview : unit.state;
    const bool hasMark = entry && isMarked(*entry, TranslationState::untranslated);
    const bool setsState =
        hasMark || present == TranslationState::needsReview || state == TranslationState::needsReview;
    const bool isSameText = entry && entry->text == unit.target;
    if (isSameText && (present == state || !setsState)) {
      ++result_.unchanged;
      return;
    }
    const std::string reason = force_ ? "" : whyStale(unit, english, entry, present);
    if (!reason.empty()) return refuse(unit, reason);
    const std::string_view previousEnglish = isOutdated ? std::string_view(unit.source) : "";
    imported_.emplace(unit.key, &unit);
    if (!entry) {
      const std::string mark = setsState ? markFor(state, previousEnglish) + "\n" : "";
      editor_.insertAfter(before, mark + tableLine(unit.key, unit.target));
      return log(unit, result_.added, fmt::format("is added: {}", shown(unit.target, state)));
    }
    if (!isSameText) editor_.replaceText(*entry, unit.target);
    if (setsState) editor_.setState(*entry, state, previousEnglish);
    if (quotedIn(*entry, kExplanation)) editor_.setComment(*entry, kExplanation, explanationOf(english));
    log(unit, isSameText ? result_.stateChanged : result_.changed,
        fmt::format("is changed from {} to {}", shown(entry->text, present), shown(unit.target, state)));
  }

  /// What has changed since `unit` was exported; empty if nothing has.
  static std::string whyStale(const TranslationUnit& unit, const EnglishText& english,
                              const TableEntry* entry, TranslationState present) {
    if (unit.source != english.text)
      return fmt::format(
          "the English text of \"{}\" has changed from \"{}\" to \"{}\"; check the translation, then import "
          "it with --force",
          escaped(unit.key), escaped(unit.source), escaped(english.text));
    const std::string_view translation = translationIn(entry, present);
    if (!hasOtherVersion(unit, versionNote(translation, present))) return "";
    return fmt::format(
        "\"{}\" has changed in the table since the export: the table has {}, this file has {}; --force "
        "imports it",
        escaped(unit.key), shown(translation, present), shown(unit.target, unit.state));
  }

  void log(const TranslationUnit& unit, std::size_t& count, const std::string& change) {
    ++count;
    changes_.push_back({Severity::note, file_, unit.at.line, unit.at.column, "",
                        fmt::format("\"{}\" {}", escaped(unit.key), change)});
  }

  void write() {
    if (!editor_.hasEdits()) return;
    const std::string bytes = editor_.edited();
    refuseErrors(Table::parse(bytes, editor_.table().file));
    writeFile(root_, editor_.table().file, bytes);
    result_.diagnostics.insert(result_.diagnostics.end(), changes_.begin(), changes_.end());
  }

  /// Throws the errors that `check` finds in imported texts, and reports its warnings.
  void refuseErrors(const Table& table) {
    for (const Diagnostic& diagnostic : checkTable(root_, language_, table, catalogue_)) {
      if (diagnostic.severity > Severity::warning) continue;
      const TableEntry* const entry = table.entryAt({diagnostic.line, diagnostic.column});
      const auto unit = entry ? imported_.find(entry->key) : imported_.end();
      if (unit == imported_.end()) continue;
      report(diagnostic.severity, *unit->second,
             fmt::format("\"{}\": {}", escaped(entry->key), diagnostic.message), diagnostic.rule);
    }
    const auto isError = [](const Diagnostic& diagnostic) { return diagnostic.severity == Severity::error; };
    if (std::none_of(result_.diagnostics.begin(), result_.diagnostics.end(), isError)) return;
    result_.diagnostics.push_back(
        {Severity::note, file_, 1, 1, "",
         "nothing was imported because of these errors; fix them and import the file again"});
    throw CommandFailed{std::move(result_.diagnostics)};
  }

  const std::string& root_;
  const std::string& language_;
  const std::string& file_;
  const bool force_;
  const Catalogue catalogue_;
  const EnglishTexts english_;
  TableEditor editor_;
  std::map<std::string, const TranslationUnit*, std::less<>> units_;     // by key
  std::map<std::string, const TranslationUnit*, std::less<>> imported_;  // those that change the table
  Diagnostics changes_;
  Import result_;
};

}  // namespace

Import importTranslations(const std::string& root, const Translations& translations, const std::string& file,
                          bool force) {
  if (translations.language == kBase) fail(file, "English texts cannot be imported; use zkstrings change");
  return Importer(root, translations, file, force).run();
}

}  // namespace zk::tools
