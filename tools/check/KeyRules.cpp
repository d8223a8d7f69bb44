#include <ZKStrings/tools/check/TableRules.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/Nearest.h>

#include <algorithm>
#include <optional>
#include <set>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr Position kFileBegin = {1, 1};

/// The keys that the module looks up and the table lacks.
std::vector<std::string_view> missingKeys(const KeyedTable& subject) {
  std::vector<std::string_view> missing;
  for (const EnglishText& english : subject.english.all()) {
    if (!subject.table.find(english.key)) missing.push_back(english.key);
  }
  return missing;
}

/// Keys that the English table lacks. What a translation lacks is a gap.
void findMissing(const KeyedTable& subject, Findings& findings) {
  const Table& table = subject.table;
  if (subject.language != kBase || !table.diagnostics.empty() || table.entries.empty()) return;
  for (const std::string_view key : missingKeys(subject)) {
    findings.add(kFileBegin, fmt::format("the English table lacks \"{}\"; add the entry", key));
  }
}

/// The key whose plural form `key` would be, if it were a plural form.
std::string_view withoutSuffix(std::string_view key) {
  for (const PluralForm& form : kPluralForms) {
    if (key.ends_with(form.suffix)) return key.substr(0, key.size() - form.suffix.size());
  }
  return key;
}

/// The keys that may be meant by misspelt ones.
struct MeantKeys {
  std::vector<std::string_view> missing;  ///< those that the table lacks, the likeliest
  std::vector<std::string_view> all;
  std::size_t searches = 100;  ///< the remaining ones; each takes its time

  explicit MeantKeys(const KeyedTable& subject) : missing(missingKeys(subject)) {
    for (const EnglishText& english : subject.english.all()) all.push_back(english.key);
  }
  std::optional<std::string_view> find(std::string_view key) {
    if (searches == 0) return std::nullopt;
    --searches;
    const std::optional<std::string_view> meant = nearest(key, missing);
    return meant ? meant : nearest(key, all);
  }
};

/// What to do about a key that nothing looks up.
std::string mendFor(std::string_view key, const KeyedTable& subject, MeantKeys& meantKeys) {
  if (subject.english.find(std::string(key) + "_many")) {
    return fmt::format("its entry is counted, so write \"{0}_zero\" to \"{0}_many\" instead", key);
  }
  const std::string_view bare = withoutSuffix(key);
  if (bare != key && subject.english.find(bare)) {
    return fmt::format("\"{}\" is not counted and has no plural forms, so remove this one", bare);
  }
  const std::optional<std::string_view> meant = meantKeys.find(key);
  return didYouMean(meant, "remove the entry");
}

void findUnknown(const KeyedTable& subject, Findings& findings) {
  MeantKeys meantKeys(subject);
  for (const TableEntry& entry : subject.table.entries) {
    if (subject.english.find(entry.key)) continue;
    const std::string key = escaped(entry.key);
    findings.add(entry, entry.keyAt,
                 fmt::format("nothing looks up the key \"{}\"; {}", key, mendFor(key, subject, meantKeys)));
  }
}

/// The plural forms of one key in the table and in English.
struct Forms {
  const TableEntry* first = nullptr;
  std::size_t count = 0;
  std::set<std::string_view> texts;
  std::set<std::string_view> english;
};

Forms formsOf(const Entry& counted, const KeyedTable& subject) {
  Forms forms;
  for (const auto& [suffix, counts, example] : kPluralForms) {
    const std::string key = std::string(counted.key).append(suffix);
    const TableEntry* const form = subject.table.find(key);
    const EnglishText* const english = subject.english.find(key);
    if (!form || !english) continue;
    if (!forms.first) forms.first = form;
    ++forms.count;
    forms.texts.insert(form->text);
    forms.english.insert(english->text);
  }
  return forms;
}

void findSamePlurals(const KeyedTable& subject, Findings& findings) {
  if (!subject.style.nounsInflect) return;
  for (const EnglishText& english : subject.english.all()) {
    if (english.suffix != kPluralForms[0].suffix) continue;
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

constexpr RuleFor<KeyedTable> kRules[] = {
    {{"missing-english", Severity::warning, "a key that the module looks up and the English table lacks"},
     findMissing},
    {{"unknown-key", Severity::warning, "a key that nothing looks up"}, findUnknown},
    {{"same-plurals", Severity::warning,
      "all five plural forms the same where the English ones differ, in a language that inflects for number"},
     findSamePlurals},
};

}  // namespace

std::span<const RuleFor<KeyedTable>> keyRules() {
  return kRules;
}

}  // namespace zk::tools
