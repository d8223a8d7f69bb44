#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

using Words = std::vector<std::string_view>;

/// Names and words that are the same in every language, longer ones before those they begin with.
constexpr std::string_view kSameEverywhere[] = {
    "ZK Trivia", "ZK Sports", "ZK Words", "ZKX",      "ZK",      "App Store", "Play Store", "Apple",
    "Beta",      "Bluetooth", "FAQs",     "Facebook", "Google",  "iOS",       "Instagram",  "OK",
    "PayPal",    "Paypal",    "SMS",      "TV",       "Twitter", "VIP",       "VIPs"};

const std::vector<Words>& namesInWords() {
  static const std::vector<Words> names = [] {
    std::vector<Words> result;
    for (const std::string_view name : kSameEverywhere) result.push_back(wordsOf(name));
    return result;
  }();
  return names;
}

/// The words of a text that are more than a number or a single letter.
Words wordsToRead(std::string_view text) {
  Words words = wordsOf(text);
  std::erase_if(words,
                [](std::string_view word) { return lengthOf(word) == 1 || numbersIn(word).size() == 1; });
  return words;
}

/// Whether an entry that says what the English text says is likely to be left over.
bool looksUntranslated(const TableEntry& entry) {
  return wordsToRead(withoutPlaceholders(entry.text)).size() > 1 && !isSameEverywhere(entry.text) &&
         !isSwitchedOff(entry, kUntranslatedRule);
}

}  // namespace

std::string_view nameOf(TranslationState state) {
  switch (state) {
    case TranslationState::missing:
      return "missing";
    case TranslationState::untranslated:
      return "untranslated";
    case TranslationState::needsReview:
      return "needs-review";
    case TranslationState::translated:
      break;
  }
  return "translated";
}

TranslationState stateOf(std::string_view language, const TableEntry* entry, const EnglishText& english) {
  if (!entry) return TranslationState::missing;
  if (isBlank(entry->text) && !isBlank(english.text)) return TranslationState::untranslated;
  if (language == kBase) return TranslationState::translated;
  const bool isEnglish = entry->text == english.text;
  if (isEnglish && isMarked(*entry, TranslationState::untranslated)) return TranslationState::untranslated;
  if (isMarked(*entry, TranslationState::needsReview)) return TranslationState::needsReview;
  return isEnglish && looksUntranslated(*entry) ? TranslationState::untranslated
                                                : TranslationState::translated;
}

bool isMarked(const TableEntry& entry, TranslationState state) {
  return std::any_of(entry.comments.begin(), entry.comments.end(), [&](const TableEntry::Comment& comment) {
    return wordsTold(comment, kState) == Words{nameOf(state)};
  });
}

std::string markFor(TranslationState state) {
  return fmt::format("/* {} {} */", kState, nameOf(state));
}

bool isSameEverywhere(std::string_view text) {
  return translatableWords(withoutPlaceholders(text)).empty();
}

std::vector<std::string_view> translatableWords(std::string_view text) {
  const Words words = wordsToRead(text);
  Words translatable;
  for (auto word = words.begin(); word != words.end();) {
    const auto isHere = [&](const Words& name) {
      return static_cast<std::size_t>(words.end() - word) >= name.size() &&
             std::equal(name.begin(), name.end(), word);
    };
    const auto name = std::find_if(namesInWords().begin(), namesInWords().end(), isHere);
    const bool isName = name != namesInWords().end();
    if (!isName) translatable.push_back(*word);
    word += isName ? static_cast<std::ptrdiff_t>(name->size()) : 1;
  }
  return translatable;
}

}  // namespace zk::tools
