#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/adoption/AdoptedTexts.h>
#include <ZKStrings/tools/adoption/PositionalText.h>
#include <ZKStrings/tools/project/Identifiers.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The forms of another app that serve for one of the five, the best first: its languages have other plural
/// rules, and "other" is what all of them have.
struct Sources {
  std::string_view suffix;
  std::vector<std::string_view> forms;
};
const std::vector<Sources>& sourcesOfForms() {
  static const std::vector<Sources> sources = {{"_zero", {"zero", "many", "other", "few"}},
                                               {"_one", {"one", "other", "many"}},
                                               {"_two", {"two", "few", "other", "many"}},
                                               {"_few", {"few", "other", "many"}},
                                               {"_many", {"many", "other", "few"}}};
  return sources;
}

const ForeignText* formFor(const ForeignEntry& entry, const Sources& sources) {
  for (const std::string_view name : sources.forms) {
    if (const auto form = entry.forms.find(name); form != entry.forms.end()) return &form->second;
  }
  return nullptr;
}

std::set<std::size_t> placesIn(const ForeignText& text) {
  std::set<std::size_t> places;
  for (const FormatPiece& piece : formatPiecesOf(text.text)) places.insert(piece.argument);
  places.erase(0);
  return places;
}

/// The text that stands for all forms: the one with the most arguments, and of those the one for most counts.
const ForeignText& mainText(const ForeignEntry& entry) {
  if (!entry.isPlural()) return entry.forms.begin()->second;
  const ForeignText* best = nullptr;
  for (const std::string_view name : {"other", "many", "few", "two", "one", "zero"}) {
    const auto form = entry.forms.find(name);
    if (form == entry.forms.end()) continue;
    if (!best || placesIn(form->second).size() > placesIn(*best).size()) best = &form->second;
  }
  return *best;
}

bool isFormatted(const FormatPiece& piece) {
  return piece.isFormatted && piece.argument != 0;
}

/// The comments as they stand before an entry.
std::string commentLines(const std::vector<std::string>& comments) {
  std::string lines;
  for (std::string comment : comments) {
    replaceOccurrences(comment, "*/", "* /");
    lines += "/*" + comment + (comment.ends_with(' ') ? "*/\n" : " */\n");
  }
  return lines;
}

}  // namespace

AdoptedTexts::AdoptedTexts(const Catalogue& present, Faults& remarks) : remarks_(remarks) {
  for (const Entry& entry : present.entries()) accessors_.insert(identifierFor(entry.key));
  for (const Catalogue::LookedUpKey& key : present.lookedUpKeys()) lookedUp_.insert(key.key);
}

void AdoptedTexts::remark(Severity severity, const ForeignText& text, std::string message) {
  remarks_.push_back({severity, text.file, text.at.line, text.at.column, "", std::move(message)});
}

std::optional<std::string> AdoptedTexts::converted(const ForeignText& text, const Known& known) {
  std::string source = text.text;
  replaceOccurrences(source, "\r\n", "\n");
  replaceOccurrences(source, "\r", "\n");
  if (source.empty()) {
    remark(Severity::warning, text, "the text is empty; left out");
    return std::nullopt;
  }
  if (findControlCharacter(source) != source.npos) {
    remark(Severity::warning, text, "the text has control characters; left out");
    return std::nullopt;
  }
  const std::vector<FormatPiece> pieces = formatPiecesOf(source);
  for (const FormatPiece& piece : pieces) {
    if (piece.argument == 0) continue;
    if (known.places.contains(piece.argument) && piece.variable.empty()) continue;
    remark(Severity::warning, text,
           fmt::format("\"{}\" has no counterpart in the English text; left out", piece.text));
    return std::nullopt;
  }
  return withNames(pieces, known.arguments);
}

std::string AdoptedTexts::whyRefused(const Entry& entry) const {
  if (findControlCharacter(entry.key) != entry.key.npos)
    return "the key has control characters; give it another by hand";
  if (std::string fault = Catalogue::faultIn(entry); !fault.empty()) return fault;
  Catalogue alone;
  alone.insert(0, entry);
  for (const Catalogue::LookedUpKey& key : alone.lookedUpKeys()) {
    if (lookedUp_.contains(key.key)) return fmt::format("the catalogue has the key \"{}\" already", key.key);
  }
  if (const std::string name = identifierFor(entry.key); accessors_.contains(name))
    return fmt::format("the catalogue has a function \"{}\" already; give the key another name", name);
  return "";
}

std::optional<Entry> AdoptedTexts::entryFor(const ForeignEntry& source) {
  const ForeignText& text = mainText(source);
  const std::vector<FormatPiece> pieces = formatPiecesOf(text.text);
  Known known{source.isPlural(), 0, placesIn(text)};
  for (const auto& [name, form] : source.forms) {
    known.arguments = std::max(known.arguments, argumentsOf(formatPiecesOf(form.text)));
  }
  if (known.arguments > 0 && argumentName(known.arguments, known.arguments).empty()) {
    remark(Severity::warning, text, "the text has more than ten placeholders; left out");
    return std::nullopt;
  }
  const std::optional<std::string> english = converted(text, known);
  if (!english) return std::nullopt;

  Entry entry{source.key, *english, source.isPlural()};
  if (keyForText(entry.text) != entry.key) entry.kept = Entry::Kept::key;
  if (const std::string reason = whyRefused(entry); !reason.empty()) {
    remark(Severity::warning, text, reason + "; left out");
    return std::nullopt;
  }
  if (const auto formatted = std::find_if(pieces.begin(), pieces.end(), isFormatted);
      formatted != pieces.end())
    remark(Severity::note, text,
           fmt::format("\"{}\" has become %{{{}}}; the app passes the number as it is to be read",
                       formatted->text, argumentName(formatted->argument, known.arguments)));
  accessors_.insert(identifierFor(entry.key));
  Catalogue alone;
  alone.insert(0, entry);
  for (const Catalogue::LookedUpKey& key : alone.lookedUpKeys()) lookedUp_.insert(key.key);
  known_.insert_or_assign(entry.key, std::move(known));
  return entry;
}

std::map<std::string, std::string> AdoptedTexts::linesFor(const ForeignEntry& translation) {
  std::map<std::string, std::string> lines;
  const auto known = known_.find(translation.key);
  if (known == known_.end()) return lines;
  if (known->second.isPlural != translation.isPlural()) {
    remark(Severity::warning, mainText(translation),
           "the text has plural forms in one of this language and English only; left out");
    return lines;
  }
  const auto add = [&](const ForeignText& text, const std::string& key) {
    const std::optional<std::string> named = converted(text, known->second);
    if (named) lines.emplace(key, commentLines(text.comments) + tableLine(key, *named));
  };
  if (!translation.isPlural()) {
    add(mainText(translation), translation.key);
    return lines;
  }
  std::set<const ForeignText*> used;
  for (const Sources& sources : sourcesOfForms()) {
    const ForeignText* const form = formFor(translation, sources);
    if (!form) continue;
    ForeignText text = *form;
    if (!used.insert(form).second) text.comments.clear();
    add(text, translation.key + std::string(sources.suffix));
  }
  return lines;
}

}  // namespace zk::tools
