#include <ZKStrings/tools/Characters.h>
#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/check/TextFeatures.h>
#include <ZKStrings/tools/check/TextRules.h>

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// Names and words that are the same in every language, longer ones before those they begin with.
constexpr std::string_view kSameEverywhere[] = {
    "ZK Trivia", "ZK Sports", "ZK Words", "ZKX",      "ZK",      "App Store", "Play Store", "Apple",
    "Beta",      "Bluetooth", "FAQs",     "Facebook", "Google",  "iOS",       "Instagram",  "OK",
    "PayPal",    "Paypal",    "SMS",      "TV",       "Twitter", "VIP",       "VIPs"};

constexpr std::size_t kLongestShort = 20;
constexpr std::size_t kTimesForShort = 3;
constexpr std::size_t kTimesForLong = 2;

/// Whether there is nothing in `text` to translate: names, placeholders, numbers and single letters alone.
bool isSameEverywhere(std::string_view text) {
  const std::string plain = withoutPlaceholders(text);
  std::string words = fmt::format("  {}  ", fmt::join(wordsOf(plain), "  "));
  for (const std::string_view name : kSameEverywhere) {
    const std::string spaced = fmt::format(" {} ", fmt::join(wordsOf(name), "  "));
    for (std::size_t at = words.find(spaced); at != std::string::npos; at = words.find(spaced)) {
      words.erase(at, spaced.size());
    }
  }
  const auto left = wordsOf(words);
  return std::all_of(left.begin(), left.end(), [](std::string_view word) {
    return lengthOf(word) == 1 || numbersIn(word).size() == 1;
  });
}

void findSameText(const Translation& translation, Findings& findings) {
  const std::string& text = translation.entry.text;
  if (text != translation.english.text || isSameEverywhere(text)) return;
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

void findDigits(const Translation& translation, Findings& findings) {
  const std::vector<std::string> here = numbersIn(withoutPlaceholders(translation.entry.text));
  const std::vector<std::string> english = numbersIn(withoutPlaceholders(translation.english.text));
  if (here == english) return;
  findings.add(
      translation.entry,
      fmt::format("the numbers in the text are \"{}\", in the English one \"{}\"; see that they are right",
                  fmt::join(here, " "), fmt::join(english, " ")));
}

using Find = void (*)(const Translation&, Findings&);

/// `find` for translations alone: that the English table says the same as the catalogue is no news.
template <Find find>
void inTranslations(const Translation& translation, Findings& findings) {
  if (translation.language != kBase) find(translation, findings);
}

constexpr RuleFor<Translation> kRules[] = {
    {{"same-text", Severity::note,
      "a text as in English, but for names and words that are the same everywhere"},
     inTranslations<findSameText>},
    {{"long-text", Severity::note,
      "a text much longer than the English: three times for short ones, twice for long"},
     inTranslations<findLongText>},
    {{"brackets", Severity::note, "more or fewer brackets than the English text"},
     inTranslations<findBrackets>},
    {{"digits", Severity::note, "other numbers than in the English text"}, inTranslations<findDigits>},
};

}  // namespace

std::span<const RuleFor<Translation>> noteRules() {
  return kRules;
}

}  // namespace zk::tools
