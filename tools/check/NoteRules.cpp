#include <ZKStrings/tools/check/TextRules.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::size_t kLongestShort = 20;
constexpr std::size_t kTimesForShort = 3;
constexpr std::size_t kTimesForLong = 2;

void findSameText(const Translation& translation, Findings& findings) {
  const std::string& text = translation.entry.text;
  if (text != translation.english.text || translation.english.settings->isSameEverywhere(text)) return;
  const TranslationState state = stateOf(translation.language, &translation.entry, translation.english);
  if (state == TranslationState::untranslated) return;
  findings.add(
      translation.entry,
      fmt::format("\"{}\" is the English text; translate it, unless the word is the same", escaped(text)));
}

void findLongText(const Translation& translation, Findings& findings) {
  const std::size_t here = lengthOf(withoutPlaceholders(translation.entry.text));
  const std::size_t english = lengthOf(withoutPlaceholders(translation.english.text));
  const std::size_t times = english <= kLongestShort ? kTimesForShort : kTimesForLong;
  if (here <= english * times) return;
  findings.add(translation.entry,
               fmt::format("the text has {} characters, the English one {}; shorten it, or see that it fits",
                           here, english));
}

void findBrackets(const Translation& translation, Findings& findings) {
  if (bracketsIn(translation.entry.text) == bracketsIn(translation.english.text)) return;
  findings.add(translation.entry, "the brackets are not those of the English text; see that none is lost");
}

constexpr RuleFor<Translation> kRules[] = {
    {{"same-text", Severity::note,
      "a word as in English, but for names and words that are the same everywhere"},
     inTranslations<findSameText>},
    {{"long-text", Severity::note,
      "a text much longer than the English: three times for short ones, twice for long"},
     inTranslations<findLongText>},
    {{"brackets", Severity::note, "more or fewer brackets than the English text"},
     inTranslations<findBrackets>},
};

}  // namespace

std::span<const RuleFor<Translation>> noteRules() {
  return kRules;
}

}  // namespace zk::tools
