#include <ZKStrings/tools/check/TableRules.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstddef>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// Calls `visit` with each entry of a well-formed translation in `state`, null for a missing one, in the
/// order of the catalogue.
template <class Visit>
void forEachIn(TranslationState state, const KeyedTable& subject, const Visit& visit) {
  if (subject.language == kBase || !subject.table.diagnostics.empty()) return;
  for (const EnglishText& english : subject.english.all()) {
    const TableEntry* const entry = subject.table.find(english.key);
    if (stateOf(subject.language, entry, english) == state) visit(entry);
  }
}

/// "1 text", "12 texts".
std::string texts(std::size_t count) {
  return fmt::format("{} text{}", count, count == 1 ? "" : "s");
}

void findMissing(const KeyedTable& subject, Findings& findings) {
  std::size_t missing = 0;
  forEachIn(TranslationState::missing, subject, [&](const TableEntry*) { ++missing; });
  if (missing == 0) return;
  findings.add({1, 1},
               fmt::format("{} missing; zkstrings update {} lists them", texts(missing), subject.language));
}

void findUntranslated(const KeyedTable& subject, Findings& findings) {
  std::size_t untranslated = 0;
  const TableEntry* first = nullptr;
  forEachIn(TranslationState::untranslated, subject, [&](const TableEntry* entry) {
    if (!first || entry->span.begin < first->span.begin) first = entry;
    ++untranslated;
  });
  if (untranslated == 0) return;
  findings.add(first->textAt, fmt::format("{} untranslated, from here on; zkstrings update {} marks them",
                                          texts(untranslated), subject.language));
}

void findNeedsReview(const KeyedTable& subject, Findings& findings) {
  forEachIn(TranslationState::needsReview, subject, [&](const TableEntry* entry) {
    findings.add(*entry,
                 fmt::format("the English text of \"{}\" has changed; make the translation right, then "
                             "remove {}",
                             escaped(entry->key), markFor(TranslationState::needsReview)));
  });
}

constexpr RuleFor<KeyedTable> kRules[] = {
    {{"missing-key", Severity::gap, "texts that the table of a translation lacks"}, findMissing},
    {{kUntranslatedRule, Severity::gap, "texts that are still in English"}, findUntranslated},
    {{"needs-review", Severity::gap, "a translation whose English text has changed"}, findNeedsReview},
};

}  // namespace

std::span<const RuleFor<KeyedTable>> gapRules() {
  return kRules;
}

}  // namespace zk::tools
