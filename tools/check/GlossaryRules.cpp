#include <ZKStrings/tools/check/TextRules.h>

#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

bool means(const Words& english, const Term& term) {
  for (std::size_t at = 0; at < english.size();) {
    if (const std::size_t passed = sizeAt(term.exceptions, english, at); passed > 0) {
      at += passed;
      continue;
    }
    if (sizeAt(term.english, english, at) > 0) return true;
    ++at;
  }
  return false;
}

/// The words of a translation as stems are looked for in them, with a blank for every space.
std::string searchable(std::string_view text) {
  constexpr std::string_view kNoBreakSpace = "\u00A0";
  std::string prose = caseFolded(proseOf(text));
  std::replace(prose.begin(), prose.end(), '\n', ' ');
  std::string result;
  for (std::size_t at = 0; at < prose.size();) {
    const bool isSpace = std::string_view(prose).substr(at).starts_with(kNoBreakSpace);
    result += isSpace ? ' ' : prose[at];
    at += isSpace ? kNoBreakSpace.size() : 1;
  }
  return result;
}

void findOtherTerms(const Translation& translation, Findings& findings) {
  const Words english(translation.english.text);
  const std::string text = searchable(translation.entry.text);
  for (const Term& term : translation.glossary.terms) {
    const auto stems = term.stems.find(translation.language);
    if (stems == term.stems.end() || !means(english, term)) continue;
    const auto stands = [&](const std::string& stem) { return text.find(stem) != std::string::npos; };
    if (std::any_of(stems->second.begin(), stems->second.end(), stands)) continue;
    findings.add(translation.entry,
                 fmt::format("the English text speaks of {}, the translation does not by the "
                             "glossary's word (\"{}\"); use it",
                             term.name, fmt::join(stems->second, "\", \"")));
  }
}

void findWrongAddress(const Translation& translation, Findings& findings) {
  const Phrases& wrong = translation.glossary.styleOf(translation.language).wrongAddress;
  if (wrong.empty()) return;
  const Words words(translation.entry.text);
  TextPlaces places(translation.entry);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (sizeAt(wrong, words, at) == 0) continue;
    findings.add(
        translation.entry, places.at(words.offsetOf(at)),
        fmt::format("\"{}\" belongs to another form of address; address the player as the other texts do",
                    words[at].spelled));
  }
}

constexpr RuleFor<Translation> kRules[] = {
    {{"glossary-term", Severity::warning, "a concept of the glossary without the glossary's word for it"},
     inTranslated<findOtherTerms>},
    {{"address", Severity::warning, "a word of another form of address than the language's"},
     inTranslated<findWrongAddress>},
};

}  // namespace

std::span<const RuleFor<Translation>> glossaryRules() {
  return kRules;
}

}  // namespace zk::tools
