#include <ZKStrings/tools/check/Prose.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

void findSamePlurals(const CheckedTable& subject, Findings& findings) {
  if (!subject.style.nounsInflect) return;
  for (const EnglishText& zero : subject.english->all()) {
    const TableEntry* const first = subject.table.find(zero.key);
    if (!first || zero.form != std::begin(kPluralForms)) continue;
    const std::span forms(&zero, std::size(kPluralForms));  // the forms of a key follow each other
    const auto isSame = [&](const EnglishText& form) {
      const TableEntry* const entry = subject.table.find(form.key);
      return entry && entry->text == first->text;
    };
    const auto isSameInEnglish = [&](const EnglishText& form) { return form.text == zero.text; };
    if (!std::all_of(forms.begin(), forms.end(), isSame) ||
        std::all_of(forms.begin(), forms.end(), isSameInEnglish))
      continue;
    findings.add(*first,
                 "the five plural forms of \"{}\" are the same, but the English ones differ; translate each "
                 "form, or write /* check: off same-plurals */ before them if they are right",
                 zero.entry->key);
  }
}

/// Returns the words, case-folded, that directly follow placeholders for numbers.
std::vector<std::string> wordsAfterNumbers(std::string_view text, const CatalogueSettings& settings) {
  std::vector<std::string> found;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (!use.isRight || !settings.isNumber(use.name)) continue;
    std::string_view rest = text.substr(use.offset + use.spelled.size());
    for (const std::string_view passed : {"*", " ", "\u00A0"}) {
      if (rest.starts_with(passed)) rest.remove_prefix(passed.size());
    }
    const std::vector<std::string_view> words = wordsOf(rest);
    if (!words.empty() && words[0].data() == rest.data()) found.push_back(caseFolded(words[0]));
  }
  return found;
}

/// The entries that use a word.
using Uses = std::map<std::string, std::set<const Entry*>>;

bool isElsewhere(const Uses& uses, const std::string& word, const Entry* entry) {
  const auto found = uses.find(word);
  return found != uses.end() && found->second.size() > found->second.count(entry);
}

/// Finds nouns that fit many things but not one: "%{n} days" in a form for many makes "days" such a noun, unless a
/// form for one has it too. The forms of the text in question do not count.
void findWrongForOne(const CheckedTable& subject, Findings& findings) {
  if (subject.language == kBase || !subject.style.nounsInflect) return;
  Uses forMany;
  Uses forOne;
  std::vector<std::pair<const EnglishText*, const TableEntry*>> suspects;
  for (const EnglishText& english : subject.english->all()) {
    const TableEntry* const entry = subject.table.find(english.key);
    if (!entry) continue;
    if (!english.form || english.form->suffix == "_one") suspects.emplace_back(&english, entry);
    if (!english.form) continue;
    if (english.form->suffix == "_one") {
      for (const std::string_view word : wordsOf(entry->text)) forOne[caseFolded(word)].insert(english.entry);
    } else if (english.form->suffix != "_zero") {
      for (const std::string& word : wordsAfterNumbers(entry->text, *english.settings))
        forMany[word].insert(english.entry);
    }
  }
  const auto endsInS = [](const std::string& word) { return word.ends_with('s'); };
  for (const auto& [english, entry] : suspects) {
    const std::vector<std::string> inEnglish = wordsAfterNumbers(english->text, *english->settings);
    if (std::any_of(inEnglish.begin(), inEnglish.end(), endsInS))
      continue;  // the translation may have a plural too
    for (const std::string& word : wordsAfterNumbers(entry->text, *english->settings)) {
      if (!isElsewhere(forMany, word, english->entry) || isElsewhere(forOne, word, english->entry)) continue;
      findings.add(*entry,
                   "\"{}\" follows a number that may be 1; write a text that is right for 1 too, or /* "
                   "check: off wrong-for-one */ before it if it already is",
                   word);
      break;
    }
  }
}

constexpr RuleFor<CheckedTable> kRules[] = {
    {{"same-plurals", Severity::warning,
      "five identical plural forms where the English ones differ, unless the glossary says that nouns do "
      "not inflect"},
     findSamePlurals},
    {{"wrong-for-one", Severity::warning, "a plural noun after a number that may be 1, as in \"1 days\""},
     findWrongForOne},
};

}  // namespace

std::span<const RuleFor<CheckedTable>> pluralRules() {
  return kRules;
}

}  // namespace zk::tools
