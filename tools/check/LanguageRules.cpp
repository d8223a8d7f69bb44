#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/check/Prose.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <unicode/uscript.h>

namespace zk::tools {

namespace {

constexpr std::string_view kNoBreakSpace = "\u00A0";

/// Whether the English text has one of the phrases of `term`.
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

/// Returns the words of a translation in the form in which stems are compared, with a blank for every space.
std::string searchable(std::string_view text) {
  std::string prose = caseFolded(proseOf(text));
  std::replace(prose.begin(), prose.end(), '\n', ' ');
  return replaceAll(prose, kNoBreakSpace, " ");
}

void findOtherTerms(const Translation& translation, Findings& findings) {
  const Words english = proseWords(translation.english.text);
  const std::string text = searchable(translation.entry.text);
  for (const Term& term : translation.glossary.terms) {
    const auto stems = term.stems.find(translation.language);
    if (stems == term.stems.end() || !means(english, term)) continue;
    const auto isInText = [&](const std::string& stem) { return text.find(stem) != std::string::npos; };
    if (std::any_of(stems->second.begin(), stems->second.end(), isInText)) continue;
    findings.add(translation.entry,
                 "the translation of {} has none of the glossary's words (\"{}\"); use one", term.name,
                 fmt::join(stems->second, "\", \""));
  }
}

void findWrongAddress(const Translation& translation, Findings& findings) {
  const Phrases& wrong = translation.glossary.styleOf(translation.language).wrongAddress;
  if (wrong.empty()) return;
  const Words words = proseWords(translation.entry.text);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (sizeAt(wrong, words, at) == 0) continue;
    findings.add(translation.entry, words[at].offset,
                 "\"{}\" is the wrong form of address; address the player as in the other texts",
                 words[at].spelled);
  }
}

/// Whether `text` has nothing but white space between the word `first` and the next one.
bool areNeighbours(std::string_view text, const Words& words, std::size_t first) {
  const std::size_t end = words[first].offset + words[first].spelled.size();
  return isBlank(text.substr(end, words[first + 1].offset - end));
}

void findDoubledWords(const Translation& translation, Findings& findings) {
  const LanguageStyle& style = translation.glossary.styleOf(translation.language);
  if (style.doublesWords) return;
  const Words words = proseWords(translation.entry.text);
  for (std::size_t at = 0; at + 1 < words.size(); ++at) {
    if (words[at].folded != words[at + 1].folded) continue;
    if (sizeAt(style.doubledWords, words, at) > 0 || !areNeighbours(translation.entry.text, words, at))
      continue;
    findings.add(translation.entry, words[at + 1].offset,
                 "the word \"{}\" is repeated; remove one of the two", words[at].spelled);
  }
}

/// Returns the first letter of `word` that belongs to another script than its first letter, if both look alike.
std::optional<std::string_view> firstStrayLetter(std::string_view word) {
  constexpr UScriptCode kLookAlikes[] = {USCRIPT_LATIN, USCRIPT_CYRILLIC, USCRIPT_GREEK};
  std::optional<UScriptCode> first;
  for (const CodePoint letter : CodePoints(word)) {
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(letter.value.value_or(0)), &status);
    if (std::find(std::begin(kLookAlikes), std::end(kLookAlikes), script) == std::end(kLookAlikes)) continue;
    if (first.value_or(script) != script) return letter.bytes;
    first = script;
  }
  return std::nullopt;
}

void findMixedScripts(const Translation& translation, Findings& findings) {
  const std::string prose = proseOf(translation.entry.text);
  for (const std::string_view word : wordsOf(prose)) {
    const std::optional<std::string_view> stray = firstStrayLetter(word);
    if (!stray) continue;
    findings.add(translation.entry, static_cast<std::size_t>(stray->data() - prose.data()),
                 "\"{}\" mixes letters of two scripts, starting at \"{}\"; use one script", word, *stray);
  }
}

/// Returns how many English words in a row are reported: one is enough in a language that does not use Latin letters.
std::size_t reportedCount(std::string_view language) {
  constexpr std::size_t kAmongLatinLetters = 3;
  UErrorCode status = U_ZERO_ERROR;
  std::array<UScriptCode, 8> scripts{};
  const std::int32_t count = uscript_getCode(std::string(language).c_str(), scripts.data(),
                                             static_cast<std::int32_t>(scripts.size()), &status);
  return count > 0 && U_SUCCESS(status) && scripts[0] != USCRIPT_LATIN ? 1 : kAmongLatinLetters;
}

/// Returns the runs of `count` words in `text`, without names and loan words. Single words have more than three letters.
std::vector<std::string> runsIn(std::string_view text, const CatalogueSettings& settings,
                                const Phrases& loanWords, std::size_t count) {
  constexpr std::size_t kLongestAbbreviation = 3;
  const std::string prose = proseOf(text);
  std::vector<std::string_view> words = settings.wordsToTranslate(prose);
  std::erase_if(words, [&](std::string_view word) { return sizeAt(loanWords, proseWords(word), 0) > 0; });
  std::vector<std::string> runs;
  for (auto word = words.begin(); words.end() - word >= static_cast<std::ptrdiff_t>(count); ++word) {
    if (count == 1 && lengthOf(*word) <= kLongestAbbreviation) continue;
    runs.push_back(
        caseFolded(fmt::to_string(fmt::join(word, word + static_cast<std::ptrdiff_t>(count), " "))));
  }
  return runs;
}

void findEnglishWords(const Translation& translation, Findings& findings) {
  const std::size_t count = reportedCount(translation.language);
  const Phrases& loanWords = translation.glossary.styleOf(translation.language).loanWords;
  const CatalogueSettings& settings = *translation.english.settings;
  const std::vector<std::string> english = runsIn(translation.english.text, settings, loanWords, count);
  const std::set<std::string_view> known(english.begin(), english.end());
  for (const std::string& run : runsIn(translation.entry.text, settings, loanWords, count)) {
    if (!known.contains(run)) continue;
    findings.add(translation.entry, "\"{}\" is English; translate it", run);
    return;
  }
}

/// The quotation marks of all languages, except for the one that is also an apostrophe.
constexpr std::string_view kQuotationMarks[] = {"\"", "„", "“",  "”",  "‟",  "‚",  "‘",  "‛",  "«",  "»",
                                                "‹",  "›", "「", "」", "『", "』", "〝", "〞", "〟", "＂"};

std::string_view characterAt(std::string_view text, std::size_t at) {
  return at < text.size() ? firstCodePoint(text.substr(at)).bytes : std::string_view();
}

bool isLetter(std::string_view character) {
  if (character.empty()) return false;
  const CodePoint codePoint = firstCodePoint(character);
  return codePoint.value && isLetterMarkOrDigit(*codePoint.value) && !isDecimalDigit(*codePoint.value);
}

bool isDigit(std::string_view character) {
  return !character.empty() && character[0] >= '0' && character[0] <= '9';
}

void findQuotationMarks(const Translation& translation, Findings& findings) {
  const std::string& right = translation.glossary.styleOf(translation.language).quotationMarks;
  if (right.empty()) return;
  for (const std::string_view mark : kQuotationMarks) {
    const std::size_t offset = translation.entry.text.find(mark);
    if (offset == std::string::npos || right.find(mark) != std::string::npos) continue;
    findings.add(translation.entry, offset, "{} is not one of the language's quotation marks; use {}", mark,
                 right);
  }
}

void findApostrophes(const Translation& translation, Findings& findings) {
  const std::size_t offset = translation.entry.text.find('\'');
  if (offset != std::string::npos)
    findings.add(translation.entry, offset, "the apostrophe is straight; write ’");
}

void findDots(const Translation& translation, Findings& findings) {
  const std::size_t offset = translation.entry.text.find("...");
  if (offset != std::string::npos)
    findings.add(translation.entry, offset, "three dots instead of an ellipsis; write …");
}

/// Returns the offset of the first of two blanks in a row; `npos` if there are none.
std::size_t findTwoBlanks(std::string_view text) {
  std::size_t first = text.npos;
  for (std::size_t at = 0; at < text.size();) {
    const std::string_view character = characterAt(text, at);
    const bool isBlank = character == " " || character == kNoBreakSpace;
    if (isBlank && first != text.npos) return first;
    first = isBlank ? at : text.npos;
    at += character.size();
  }
  return text.npos;
}

void findDoubledBlanks(const Translation& translation, Findings& findings) {
  const std::size_t offset = findTwoBlanks(translation.entry.text);
  if (offset == std::string::npos || findTwoBlanks(translation.english.text) != std::string::npos) return;
  findings.add(translation.entry, offset, "two spaces in a row; write one");
}

/// Whether `mark`, at the offset `at`, needs no no-break space before it: at the beginning of the text or of a line,
/// within a number or a word, after another such mark, a bracket or a quotation mark.
bool needsNoSpace(std::string_view mark, std::string_view text, std::size_t at, const LanguageStyle& style) {
  const std::string_view before = lastCodePoint(text.substr(0, at));
  if (before.empty() || before == "\n" || before == "(") return true;
  const bool isWithinNumber = isDigit(before) && isDigit(characterAt(text, at + mark.size()));
  const bool isWithinWord = isLetter(before) && isLetter(characterAt(mark, 0));
  const bool isAfterMark =
      std::find(style.noBreakBefore.begin(), style.noBreakBefore.end(), before) != style.noBreakBefore.end();
  return isWithinNumber || isWithinWord || isAfterMark ||
         style.quotationMarks.find(before) != std::string::npos;
}

/// Adds a finding for each of `marks` in the prose of `translation` that `isMissing` accepts, with its place.
template <class IsMissing>
void findWithoutSpace(const std::vector<std::string>& marks, std::string_view side,
                      const Translation& translation, Findings& findings, const IsMissing& isMissing) {
  const std::string text = proseOf(translation.entry.text);
  for (const std::string& mark : marks) {
    for (std::size_t at = text.find(mark); at != text.npos; at = text.find(mark, at + mark.size())) {
      if (!isMissing(text, at, mark)) continue;
      findings.add(translation.entry, at, "missing no-break space (U+00A0) {1} \"{0}\"; write one", mark,
                   side);
    }
  }
}

void findNoBreakSpaces(const Translation& translation, Findings& findings) {
  const LanguageStyle& style = translation.glossary.styleOf(translation.language);
  findWithoutSpace(style.noBreakBefore, "before", translation, findings,
                   [&](std::string_view text, std::size_t at, std::string_view mark) {
                     return lastCodePoint(text.substr(0, at)) != kNoBreakSpace &&
                            !needsNoSpace(mark, text, at, style);
                   });
  findWithoutSpace(style.noBreakAfter, "after", translation, findings,
                   [](std::string_view text, std::size_t at, std::string_view mark) {
                     const std::string_view after = characterAt(text, at + mark.size());
                     return !after.empty() && after != kNoBreakSpace;
                   });
}

/// `find` for what has been translated: in a text that equals the English one, words and typography are English.
template <void (*find)(const Translation&, Findings&)>
void ifTranslated(const Translation& translation, Findings& findings) {
  const bool isTranslated = translation.entry.text != translation.english.text;
  if (translation.language != kBase && isTranslated) find(translation, findings);
}

constexpr RuleFor<Translation> kRules[] = {
    {{"glossary-term", Severity::warning, "a translation without the glossary's term for a concept"},
     ifTranslated<findOtherTerms>},
    {{"address", Severity::warning, "a word that belongs to the wrong form of address"},
     ifTranslated<findWrongAddress>},
    {{"doubled-word", Severity::warning, "a repeated word, unless the glossary allows it"}, findDoubledWords},
    {{"mixed-scripts", Severity::warning, "a word with letters of two scripts: Latin, Cyrillic or Greek"},
     findMixedScripts},
    {{"english-words", Severity::warning,
      "untranslated English words, except names: three in a row, or one if the language does not use "
      "Latin letters"},
     ifTranslated<findEnglishWords>},
    {{"quotation-marks", Severity::warning, "straight quotation marks, or those of another language"},
     ifTranslated<findQuotationMarks>},
    {{"apostrophe", Severity::warning, "a straight apostrophe"}, ifTranslated<findApostrophes>},
    {{"ellipsis", Severity::warning, "three dots instead of an ellipsis"}, ifTranslated<findDots>},
    {{"doubled-blank", Severity::warning, "two spaces in a row, unless the English text has them"},
     findDoubledBlanks},
    {{"no-break-space", Severity::warning, "a mark without the no-break space that the language requires"},
     ifTranslated<findNoBreakSpaces>},
};

}  // namespace

std::span<const RuleFor<Translation>> languageRules() {
  return kRules;
}

}  // namespace zk::tools
