#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// Whether an entry with the English text is probably not translated yet.
bool looksUntranslated(const TableEntry& entry, const CatalogueSettings& settings) {
  return wordsToRead(withoutPlaceholders(entry.text)).size() > 1 && !settings.isSameEverywhere(entry.text) &&
         !isSwitchedOff(entry, kUntranslatedRule);
}

}  // namespace

std::string_view nameOf(TranslationState state) {
  constexpr std::string_view kNames[] = {"missing", "untranslated", "needs-review", "translated"};
  return kNames[static_cast<std::size_t>(state)];
}

TranslationState stateOf(std::string_view language, const TableEntry* entry, const EnglishText& english) {
  if (!entry) return TranslationState::missing;
  if (isBlank(entry->text) && !isBlank(english.text)) return TranslationState::untranslated;
  if (language == kBase) return TranslationState::translated;
  const std::optional<std::string> recorded = quotedIn(*entry, kExplanation);
  const bool isEnglish = entry->text == english.text || entry->text == recorded;
  if (isEnglish && isMarked(*entry, TranslationState::untranslated)) return TranslationState::untranslated;
  const bool isOutdated = recorded && *recorded != english.text;
  if (isOutdated || isMarked(*entry, TranslationState::needsReview)) return TranslationState::needsReview;
  return entry->text == english.text && looksUntranslated(*entry, *english.settings)
             ? TranslationState::untranslated
             : TranslationState::translated;
}

bool isMarked(const TableEntry& entry, TranslationState state) {
  return std::any_of(entry.comments.begin(), entry.comments.end(), [&](const TableEntry::Comment& comment) {
    const auto words = wordsTold(comment, kState);
    return words && !words->empty() && words->front() == nameOf(state);
  });
}

std::string markFor(TranslationState state, std::string_view previousEnglish) {
  const bool hasPrevious = state == TranslationState::needsReview && !previousEnglish.empty();
  const std::string previous = !hasPrevious ? "" : fmt::format("; was {}", quotedForComment(previousEnglish));
  return fmt::format("/* {} {}{} */", kState, nameOf(state), previous);
}

}  // namespace zk::tools
