#include <ZKStrings/tools/check/EndPunctuation.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

using Names = std::vector<std::string_view>;

bool contains(const Names& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Returns the one of the names `allowed` that `name` is or most likely misspells; nothing if there is none.
std::optional<std::string_view> meantBy(std::string_view name, const Names& allowed) {
  return contains(allowed, name) ? name : nearest(name, allowed);
}

std::string fixFor(std::string_view name, const Names& allowed) {
  if (const auto meant = meantBy(name, allowed)) return fmt::format("write \"%{{{}}}\"", *meant);
  if (allowed.empty()) return "remove it, because the English text has no placeholders";
  return fmt::format("write {}\"%{{{}}}\"", allowed.size() == 1 ? "" : "one of ",
                     fmt::join(allowed, "}\", \"%{"));
}

void findUnknown(const Translation& translation, Findings& findings) {
  const Names allowed = translation.english.placeholders();
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    if (!use.isRight || contains(allowed, use.name)) continue;
    findings.add(translation.entry, use.offset, "the English text has no placeholder \"{}\"; {}", use.spelled,
                 fixFor(use.name, allowed));
  }
}

void findMisspelt(const Translation& translation, Findings& findings) {
  const Names allowed = translation.english.placeholders();
  Names inEnglish;
  for (const PlaceholderUse& use : placeholderUses(translation.english.text))
    inEnglish.push_back(use.spelled);
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text)) {
    if (use.isRight || contains(inEnglish, use.spelled)) continue;
    // Braces have no other use. After a percent sign, only a word like a name counts.
    if (!use.hasBrace && !meantBy(use.name, allowed)) continue;
    findings.add(translation.entry, use.offset, "\"{}\" is not a placeholder, so users see it literally; {}",
                 escaped(use.spelled), fixFor(use.name, allowed));
  }
}

void findUnused(const Translation& translation, Findings& findings) {
  const EnglishText& english = translation.english;
  const Names allowed = english.placeholders();
  std::set<std::string_view> used = {english.optionalPlaceholder()};
  // Another rule reports the misspelt ones.
  for (const PlaceholderUse& use : placeholderUses(translation.entry.text))
    used.insert(meantBy(use.name, allowed).value_or(""));
  for (const std::string_view name : placeholderNames(english.text)) {
    if (used.contains(name)) continue;
    findings.add(
        translation.entry,
        "the placeholder \"%{{{}}}\" of the English text is missing; write it where its value belongs", name);
  }
}

using Counts = std::map<std::string_view, std::size_t>;

Counts countsIn(std::string_view text) {
  Counts counts;
  for (const std::string_view name : placeholderNames(text)) ++counts[name];
  return counts;
}

/// A plural form may use a placeholder as often as its entry does, even if the English form does not.
void findRepeated(const Translation& translation, Findings& findings) {
  Counts allowed = countsIn(translation.english.text);
  for (const auto& [name, count] : countsIn(translation.english.entry->text)) {
    allowed[name] = std::max(allowed[name], count);
  }
  for (const auto& [name, count] : countsIn(translation.entry.text)) {
    const auto most = allowed.find(name);
    if (most == allowed.end() || count <= most->second) continue;
    findings.add(translation.entry,
                 "the placeholder \"%{{{}}}\" occurs {} times, but {} in the English text; use it as often",
                 name, count, most->second == 1 ? "once" : fmt::format("{} times", most->second));
  }
}

/// The English table must equal the catalogue.
void findOtherEnglish(const Translation& translation, Findings& findings) {
  const EnglishText& english = translation.english;
  if (translation.language != kBase || translation.entry.text == english.text) return;
  findings.add(translation.entry,
               "the text in the catalogue is \"{}\"; run zkstrings generate, or change the text with "
               "zkstrings change {}",
               escaped(english.text), english.entry->key);
}

void findMarks(const Translation& translation, Findings& findings) {
  const std::vector<TextPiece> pieces = piecesOf(translation.entry.text);
  const bool areUnpaired = std::any_of(pieces.begin(), pieces.end(), [](const TextPiece& piece) {
    return piece.kind == TextPiece::Kind::placeholder && !piece.text.starts_with('%');
  });
  if (areUnpaired) {
    findings.add(translation.entry, "unbalanced <b> tags or * marks; open and close each part");
    return;
  }
  for (const auto& [name, opening] : {std::pair("<b> tags", "<b>"), std::pair("* marks", "*")}) {
    const std::size_t here = countOf(translation.entry.text, opening);
    const std::size_t english = countOf(translation.english.text, opening);
    if (here < english) {
      findings.add(translation.entry, "there are fewer {} than in the English text; mark the same parts",
                   name);
    } else if (here > 0 && english == 0) {
      findings.add(translation.entry,
                   "the English text has no {}, so users may see them literally; remove them", name);
    }
  }
}

void findLineBreaks(const Translation& translation, Findings& findings) {
  const std::size_t here = countOf(translation.entry.text, "\n");
  const std::size_t english = countOf(translation.english.text, "\n");
  if (here == english) return;
  findings.add(translation.entry,
               "the number of line breaks (\\n) is {}, but {} in the English text; use the same number", here,
               english);
}

void findOuterSpace(const Translation& translation, Findings& findings) {
  const OuterSpace here = outerSpace(translation.entry.text);
  const OuterSpace english = outerSpace(translation.english.text);
  if (here == english) return;
  const bool isLeading = here.leading != english.leading;
  findings.add(translation.entry,
               "the {} white space is \"{}\", but \"{}\" in the English text; use the same",
               isLeading ? "leading" : "trailing", escaped(isLeading ? here.leading : here.trailing),
               escaped(isLeading ? english.leading : english.trailing));
}

void findEndPunctuation(const Translation& translation, Findings& findings) {
  const Ending here = endingOf(translation.entry.text, translation.language);
  const Ending english = endingOf(translation.english.text, "en");
  const bool isStop = english == Ending::stop || english == Ending::question;
  const bool mayBeBare = isStop && !translation.glossary.styleOf(translation.language).sentenceStops;
  if (here == english || (mayBeBare && here == Ending::none)) return;
  findings.add(translation.entry, "the text ends with {}, the English text with {}; use the same",
               nameOf(here), nameOf(english));
}

/// Whether a plural form may write its number as a word.
bool maySpellNumbers(const EnglishText& english) {
  return english.form && english.form->example < 3;
}

void findDigits(const Translation& translation, Findings& findings) {
  const std::vector<std::string> here = numbersIn(withoutPlaceholders(translation.entry.text));
  const std::vector<std::string> english = numbersIn(withoutPlaceholders(translation.english.text));
  const bool areRight = maySpellNumbers(translation.english)
                            ? std::includes(english.begin(), english.end(), here.begin(), here.end())
                            : here == english;
  if (areRight) return;
  findings.add(translation.entry, "the numbers are \"{}\", but \"{}\" in the English text; use the same",
               fmt::join(here, " "), fmt::join(english, " "));
}

constexpr std::size_t kLongestShort = 20;
constexpr std::size_t kTimesForShort = 3;
constexpr std::size_t kTimesForLong = 2;

void findSameText(const Translation& translation, Findings& findings) {
  const std::string& text = translation.entry.text;
  if (text != translation.english.text || translation.english.settings->isSameEverywhere(text)) return;
  const TranslationState state = stateOf(translation.language, &translation.entry, translation.english);
  if (state == TranslationState::untranslated) return;
  findings.add(translation.entry,
               "\"{}\" is the English text; translate it, unless the word is the same in both languages",
               escaped(text));
}

void findLongText(const Translation& translation, Findings& findings) {
  const std::size_t here = lengthOf(withoutPlaceholders(translation.entry.text));
  const std::size_t english = lengthOf(withoutPlaceholders(translation.english.text));
  const std::size_t times = english <= kLongestShort ? kTimesForShort : kTimesForLong;
  if (here <= english * times) return;
  findings.add(translation.entry,
               "the text has {} characters, the English text {}; shorten it, or make sure that it fits", here,
               english);
}

void findTooLong(const Translation& translation, Findings& findings) {
  const std::size_t max = translation.english.entry->max;
  const std::size_t here = charactersIn(withoutPlaceholders(translation.entry.text));
  if (max == 0 || here <= max) return;
  findings.add(translation.entry, "the text has {} characters, but only {} fit; shorten it", here, max);
}

template <void (*find)(const Translation&, Findings&)>
void exceptInEnglish(const Translation& translation, Findings& findings) {
  if (translation.language != kBase) find(translation, findings);
}

constexpr RuleFor<Translation> kRules[] = {
    {{"unknown-placeholder", Severity::error, "a placeholder that the English text does not have"},
     findUnknown},
    {{"placeholder-spelling", Severity::error, "a placeholder that is not written as %{name}"}, findMisspelt},
    {{"unused-placeholder", Severity::warning,
      "a missing placeholder of the English text; _zero and _one may omit the number"},
     findUnused},
    {{"repeated-placeholder", Severity::warning,
      "a placeholder that occurs more often than in the English text"},
     findRepeated},
    {{"base-text", Severity::warning, "a text of the English table that differs from the catalogue"},
     findOtherEnglish},
    {{"marks", Severity::warning, "<b> tags or * marks that are unbalanced, missing or added"}, findMarks},
    {{"line-breaks", Severity::warning, "more or fewer line breaks than the English text"}, findLineBreaks},
    {{"outer-space", Severity::warning, "leading or trailing white space that differs from the English text"},
     findOuterSpace},
    {{"end-punctuation", Severity::warning,
      "final punctuation that differs from the English text, regardless of script"},
     findEndPunctuation},
    {{"digits", Severity::warning,
      "numbers that differ from the English text; _zero, _one and _two may spell them out"},
     exceptInEnglish<findDigits>},
    {{"max-length", Severity::warning, "a text that is longer than the \"max\" of its entry"}, findTooLong},
    {{"same-text", Severity::note, "a word that is the same as in English and is not a name"},
     exceptInEnglish<findSameText>},
    {{"long-text", Severity::note,
      "a text more than twice as long as the English one (three times if the English one is short)"},
     exceptInEnglish<findLongText>},
};

}  // namespace

std::span<const RuleFor<Translation>> textRules() {
  return kRules;
}

}  // namespace zk::tools
