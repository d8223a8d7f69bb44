#include <ZKStrings/tools/check/Prose.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
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

/// The plural forms of one key in the table and in English.
struct Forms {
  const TableEntry* first = nullptr;
  std::size_t count = 0;
  std::set<std::string_view> texts;
  std::set<std::string_view> english;
};

Forms formsOf(const Entry& counted, const CheckedTable& subject) {
  Forms forms;
  for (const PluralForm& form : kPluralForms) {
    const std::string key = std::string(counted.key).append(form.suffix);
    const TableEntry* const entry = subject.table.find(key);
    const EnglishText* const english = subject.english->find(key);
    if (!entry || !english) continue;
    if (!forms.first) forms.first = entry;
    ++forms.count;
    forms.texts.insert(entry->text);
    forms.english.insert(english->text);
  }
  return forms;
}

void findSamePlurals(const CheckedTable& subject, Findings& findings) {
  if (!subject.style.nounsInflect) return;
  for (const EnglishText& english : subject.english->all()) {
    if (english.form != std::begin(kPluralForms)) continue;
    const Forms forms = formsOf(*english.entry, subject);
    const bool areSame = forms.count == std::size(kPluralForms) && forms.texts.size() == 1;
    if (!areSame || forms.english.size() == 1) continue;
    findings.add(
        *forms.first,
        fmt::format(
            "the five plural forms of \"{}\" are the same, but the English ones differ; translate each "
            "form, or write /* check: off same-plurals */ before them if they are right",
            english.entry->key));
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

/// The nouns of one language that fit many things but not one.
///
/// "%{n} days" in a form for many makes "days" such a noun, unless a form for one has it too. The forms of the text
/// in question do not count.
class NounsForMany {
 public:
  /// `textOf` returns the text for an English one, null if there is none.
  template <class TextOf>
  NounsForMany(const EnglishTexts& english, const TextOf& textOf) {
    for (const EnglishText& form : english.all()) {
      const std::string* const text = form.form ? textOf(form) : nullptr;
      if (!text) continue;
      if (form.form->suffix == "_one") {
        for (const std::string_view word : wordsOf(*text)) forOne_[caseFolded(word)].insert(form.entry);
      } else if (form.form->suffix != "_zero") {
        for (std::string& word : wordsAfterNumbers(*text, *form.settings)) {
          forMany_[std::move(word)].insert(form.entry);
        }
      }
    }
  }

  /// Returns the first of them that follows a number in `text`; empty if there is none.
  [[nodiscard]] std::string find(std::string_view text, const EnglishText& english) const {
    const auto isElsewhere = [&](const Uses& uses, const std::string& word) {
      const auto found = uses.find(word);
      return found != uses.end() && found->second.size() > found->second.count(english.entry);
    };
    for (const std::string& word : wordsAfterNumbers(text, *english.settings)) {
      if (isElsewhere(forMany_, word) && !isElsewhere(forOne_, word)) return word;
    }
    return "";
  }

 private:
  using Uses = std::map<std::string, std::set<const Entry*>>;
  Uses forMany_;
  Uses forOne_;
};

/// Whether the English text has a plural after a number, as a translation then may too.
bool isPlural(const EnglishText& english, const NounsForMany& nouns) {
  const std::vector<std::string> words = wordsAfterNumbers(english.text, *english.settings);
  const auto endsInS = [](const std::string& word) { return word.ends_with('s'); };
  return std::any_of(words.begin(), words.end(), endsInS) || !nouns.find(english.text, english).empty();
}

void findWrongForOne(const CheckedTable& subject, Findings& findings) {
  if (subject.language == kBase || !subject.style.nounsInflect) return;
  const NounsForMany nouns(*subject.english, [&](const EnglishText& english) {
    const TableEntry* const entry = subject.table.find(english.key);
    return entry ? &entry->text : nullptr;
  });
  const NounsForMany englishNouns(*subject.english, [](const EnglishText& english) { return &english.text; });
  for (const EnglishText& english : subject.english->all()) {
    const TableEntry* const entry = subject.table.find(english.key);
    if (!entry || (english.form && english.form->suffix != "_one")) continue;
    const std::string noun = nouns.find(entry->text, english);
    if (noun.empty() || isPlural(english, englishNouns)) continue;
    findings.add(*entry, fmt::format("\"{}\" follows a number that may be 1; write a text that fits it, or "
                                     "/* check: off wrong-for-one */ before it if the text does",
                                     noun));
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
