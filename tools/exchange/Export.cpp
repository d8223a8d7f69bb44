#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/exchange/Exchange.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstdint>
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
  if (const std::string_view name = english.dispensable(); !name.empty())
    notes.back() += fmt::format(" %{{{}}} may be omitted if the text spells the number out.", name);
  const std::vector<TextPiece> pieces = piecesOf(english.text);
  if (std::any_of(pieces.begin(), pieces.end(),
                  [](const TextPiece& piece) { return piece.kind == TextPiece::Kind::opening; }))
    notes.emplace_back("Words between <b> and </b> are bold, words between * and * are emphasised.");
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

}  // namespace zk::tools
