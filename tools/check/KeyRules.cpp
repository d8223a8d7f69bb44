#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/Nearest.h>
#include <ZKStrings/tools/check/TableRules.h>

#include <algorithm>
#include <optional>
#include <set>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr Position kFileBegin = {1, 1};

/// The keys that the module looks up and the table lacks.
std::vector<std::string_view> missingKeys(const KeyedTable& subject) {
  std::set<std::string_view> present;
  for (const TableEntry& entry : subject.table.entries) present.insert(entry.key);
  std::vector<std::string_view> missing;
  for (const EnglishText& english : subject.english.all()) {
    if (!present.contains(english.key)) missing.push_back(english.key);
  }
  return missing;
}

void findMissing(const KeyedTable& subject, Findings& findings) {
  const std::vector<std::string_view> missing = missingKeys(subject);
  const bool isUnreadable = !subject.table.faults.empty() && subject.table.entries.empty();
  if (missing.empty() || isUnreadable) return;
  findings.add(kFileBegin, fmt::format("{} of the {} keys that the module looks up {} missing; add \"{}\"",
                                       missing.size(), subject.english.all().size(),
                                       missing.size() == 1 ? "is" : "are", fmt::join(missing, "\", \"")));
}

/// The key whose plural form `key` would be, if it were a plural form.
std::string_view withoutSuffix(std::string_view key) {
  for (const std::string_view suffix : kPluralSuffixes) {
    if (key.ends_with(suffix)) return key.substr(0, key.size() - suffix.size());
  }
  return key;
}

/// The key that was most likely meant by a misspelt one: one that the table lacks, or else any.
std::optional<std::string_view> meantKey(std::string_view key, const KeyedTable& subject) {
  if (const auto missing = nearest(key, missingKeys(subject))) return missing;
  std::vector<std::string_view> all;
  for (const EnglishText& english : subject.english.all()) all.push_back(english.key);
  return nearest(key, all);
}

/// What to do about a key that nothing looks up.
std::string mendFor(std::string_view key, const KeyedTable& subject) {
  if (subject.english.find(std::string(key) + "_many")) {
    return fmt::format("its entry is counted, so write \"{0}_zero\" to \"{0}_many\" instead", key);
  }
  const std::string_view bare = withoutSuffix(key);
  if (bare != key && subject.english.find(bare)) {
    return fmt::format("\"{}\" is not counted and has no plural forms, so remove this one", bare);
  }
  const std::optional<std::string_view> meant = meantKey(key, subject);
  return meant ? fmt::format("write \"{}\" if that is meant", *meant) : "remove the entry";
}

void findUnknown(const KeyedTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) {
    if (subject.english.find(entry.key)) continue;
    const std::string key = escaped(entry.key);
    findings.add(entry, entry.keyAt,
                 fmt::format("nothing looks up the key \"{}\"; {}", key, mendFor(key, subject)));
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
  for (const std::string_view suffix : kPluralSuffixes) {
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
  if (!inflectsForNumber(subject.language)) return;
  for (const EnglishText& english : subject.english.all()) {
    if (english.suffix != kPluralSuffixes[0]) continue;
    const Forms forms = formsOf(*english.entry, subject);
    const bool areSame = forms.count == std::size(kPluralSuffixes) && forms.texts.size() == 1;
    if (!areSame || forms.english.size() == 1) continue;
    findings.add(
        *forms.first,
        fmt::format("the five plural forms of \"{}\" are the same, where the English ones differ; write "
                    "each as its count asks, or before them /* check: off same-plurals */ if they are right",
                    english.entry->key));
  }
}

constexpr RuleFor<KeyedTable> kRules[] = {
    {{"missing-key", Severity::warning, "keys that the module looks up and the table lacks"}, findMissing},
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
