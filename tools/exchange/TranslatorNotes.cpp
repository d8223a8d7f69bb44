#include <ZKStrings/tools/exchange/TranslatorNotes.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/TextPieces.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

std::string pluralNote(const EnglishText& english) {
  const auto* const form = std::find_if(std::begin(kPluralForms), std::end(kPluralForms),
                                        [&](const PluralForm& one) { return one.suffix == english.suffix; });
  return fmt::format("The plural form {} is used for {}. It must be right for every such number.",
                     form->suffix, form->counts);
}

std::string placeholderNote(const EnglishText& english) {
  const std::vector<std::string_view> names = english.placeholders();
  std::string note = fmt::format("The app fills in %{{{}}}. Copy what stands there letter by letter.",
                                 fmt::join(names, "}, %{"));
  if (!english.dispensable().empty())
    note += fmt::format(" %{{{}}} may be left out where the text says the number.", english.dispensable());
  return note;
}

bool hasMarks(const EnglishText& english) {
  const std::vector<TextPiece> pieces = piecesOf(english.text);
  return std::any_of(pieces.begin(), pieces.end(),
                     [](const TextPiece& piece) { return piece.kind == TextPiece::Kind::opening; });
}

}  // namespace

std::vector<std::string> translatorNotes(const EnglishText& english) {
  std::vector<std::string> notes;
  if (!english.suffix.empty()) notes.push_back(pluralNote(english));
  if (!english.placeholders().empty()) notes.push_back(placeholderNote(english));
  if (hasMarks(english))
    notes.emplace_back("Words between <b> and </b> are bold, those between * and * emphasised.");
  notes.push_back(fmt::format("The English has {} characters.", lengthOf(english.text)));
  return notes;
}

}  // namespace zk::tools
