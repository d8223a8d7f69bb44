#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/translation/TableReview.h>
#include <ZKStrings/tools/translation/Template.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace zk::tools {

std::size_t markChanged(TableEditor& editor, const EnglishTexts& english, const Table& base,
                        bool keepsMeaning, const std::set<std::string, std::less<>>& reviewed) {
  std::size_t marked = 0;
  for (const TableEntry& entry : editor.table().entries) {
    const EnglishText* const now = english.find(entry.key);
    if (!now) continue;
    const bool isUntranslated = isMarked(entry, TranslationState::untranslated);
    const bool isReviewed = isMarked(entry, TranslationState::needsReview);
    const std::optional<std::string> recorded = quotedIn(entry, kExplanation);
    if (recorded) editor.setComment(entry, kExplanation, explanationOf(*now));
    if (recorded || isUntranslated || isReviewed) editor.setComment(entry, kContext, contextOf(*now));

    const TableEntry* const inBase = base.find(entry.key);
    const std::string before = recorded ? *recorded : inBase ? inBase->text : now->text;
    const bool isInAnyCase = reviewed.contains(entry.key);
    if (before == now->text && !isInAnyCase) continue;
    if (isUntranslated && (entry.text == before || entry.text.empty())) {
      editor.replaceText(entry, now->text);
      continue;
    }
    if (keepsMeaning) continue;
    const std::string madeFrom = (isReviewed ? quotedIn(entry, kState) : std::nullopt).value_or(before);
    if (madeFrom == now->text && !isInAnyCase) {
      editor.setState(entry, TranslationState::translated);  // the change is taken back
      continue;
    }
    editor.setState(entry, TranslationState::needsReview, madeFrom == now->text ? "" : madeFrom);
    ++marked;
  }
  return marked;
}

}  // namespace zk::tools
