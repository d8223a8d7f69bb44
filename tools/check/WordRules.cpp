#include <ZKStrings/tools/check/TextRules.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <set>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <unicode/uscript.h>

namespace zk::tools {

namespace {

/// Whether nothing but white space stands in `text` between the two words.
bool areNeighbours(std::string_view text, const Words& words, std::size_t first) {
  const std::size_t end = words.offsetOf(first) + words[first].spelled.size();
  return isBlank(text.substr(end, words.offsetOf(first + 1) - end));
}

void findDoubledWords(const Translation& translation, Findings& findings) {
  const LanguageStyle& style = translation.glossary.styleOf(translation.language);
  if (style.doublesWords) return;
  const Words words(translation.entry.text);
  TextPlaces places(translation.entry);
  for (std::size_t at = 0; at + 1 < words.size(); ++at) {
    if (words[at].folded != words[at + 1].folded) continue;
    if (sizeAt(style.doubledWords, words, at) > 0 || !areNeighbours(translation.entry.text, words, at))
      continue;
    findings.add(
        translation.entry, places.at(words.offsetOf(at + 1)),
        fmt::format("the word \"{}\" stands twice in a row; remove one of the two", words[at].spelled));
  }
}

UScriptCode scriptOf(char32_t character) {
  UErrorCode status = U_ZERO_ERROR;
  return uscript_getScript(static_cast<UChar32>(character), &status);
}

/// The scripts whose letters look alike.
constexpr UScriptCode kLookAlikes[] = {USCRIPT_LATIN, USCRIPT_CYRILLIC, USCRIPT_GREEK};

/// The letter by which `word` begins to be of a second script that looks like its first.
std::optional<std::string_view> firstStrayLetter(std::string_view word) {
  std::optional<UScriptCode> first;
  for (const CodePoint letter : CodePoints(word)) {
    const UScriptCode script = letter.value ? scriptOf(*letter.value) : USCRIPT_COMMON;
    const bool looksAlike =
        std::find(std::begin(kLookAlikes), std::end(kLookAlikes), script) != std::end(kLookAlikes);
    if (!looksAlike) continue;
    if (first && *first != script) return letter.bytes;
    first = script;
  }
  return std::nullopt;
}

void findMixedScripts(const Translation& translation, Findings& findings) {
  const std::string prose = proseOf(translation.entry.text);
  TextPlaces places(translation.entry);
  for (const std::string_view word : wordsOf(prose)) {
    const std::optional<std::string_view> stray = firstStrayLetter(word);
    if (!stray) continue;
    findings.add(translation.entry, places.at(static_cast<std::size_t>(stray->data() - prose.data())),
                 fmt::format("the letters of \"{}\" are of two scripts, from \"{}\" on; write them in one",
                             word, *stray));
  }
}

/// How many words in a row tell that they are English. In a text of other letters, one does.
std::size_t tellingCount(std::string_view language) {
  constexpr std::size_t kAmongLatinLetters = 3;
  UErrorCode status = U_ZERO_ERROR;
  std::array<UScriptCode, 8> scripts{};
  const std::int32_t count = uscript_getCode(std::string(language).c_str(), scripts.data(),
                                             static_cast<std::int32_t>(scripts.size()), &status);
  return count > 0 && U_SUCCESS(status) && scripts[0] != USCRIPT_LATIN ? 1 : kAmongLatinLetters;
}

/// The runs of `count` words in `text`, names and loan words aside; of single words, those of more than three
/// letters.
std::vector<std::string> runsIn(std::string_view text, const CatalogueSettings& settings,
                                const Phrases& loanWords, std::size_t count) {
  constexpr std::size_t kLongestAbbreviation = 3;
  const std::string prose = proseOf(text);
  std::vector<std::string_view> words = settings.wordsToTranslate(prose);
  std::erase_if(words, [&](std::string_view word) { return sizeAt(loanWords, Words(word), 0) > 0; });
  std::vector<std::string> runs;
  for (auto word = words.begin(); words.end() - word >= static_cast<std::ptrdiff_t>(count); ++word) {
    if (count == 1 && lengthOf(*word) <= kLongestAbbreviation) continue;
    runs.push_back(
        caseFolded(fmt::to_string(fmt::join(word, word + static_cast<std::ptrdiff_t>(count), " "))));
  }
  return runs;
}

void findEnglishWords(const Translation& translation, Findings& findings) {
  const std::size_t count = tellingCount(translation.language);
  const Phrases& loanWords = translation.glossary.styleOf(translation.language).loanWords;
  const CatalogueSettings& settings = *translation.english.settings;
  const std::vector<std::string> english = runsIn(translation.english.text, settings, loanWords, count);
  const std::set<std::string_view> known(english.begin(), english.end());
  for (const std::string& run : runsIn(translation.entry.text, settings, loanWords, count)) {
    if (!known.contains(run)) continue;
    findings.add(translation.entry, fmt::format("\"{}\" is English; translate it", run));
    return;
  }
}

constexpr RuleFor<Translation> kRules[] = {
    {{"doubled-word", Severity::warning, "the same word twice in a row, unless the glossary allows it"},
     findDoubledWords},
    {{"mixed-scripts", Severity::warning, "Latin, Cyrillic or Greek letters in one word"}, findMixedScripts},
    {{"english-words", Severity::warning,
      "words of the English text, names aside: three in a row, or one in a script that is not Latin"},
     inTranslated<findEnglishWords>},
};

}  // namespace

std::span<const RuleFor<Translation>> wordRules() {
  return kRules;
}

}  // namespace zk::tools
