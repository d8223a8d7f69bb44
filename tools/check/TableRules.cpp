#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

constexpr Position kFileBegin = {1, 1};

bool isWellFormed(const CheckedTable& subject) {
  return subject.table.diagnostics.empty();
}

void findDirectory(const CheckedTable& subject, Findings& findings) {
  const std::string reason = whyNeverChosen(subject.language);
  if (!reason.empty()) findings.add(kFileBegin, "{}", reason);
}

void findMissingTable(const CheckedTable& subject, Findings& findings) {
  const Table& table = subject.table;
  const bool isMissing = !isWellFormed(subject) && table.diagnostics.front().rule == Table::kMissing;
  const bool isEmpty = isWellFormed(subject) && table.entries.empty();
  if (subject.language == kBase && (isMissing || isEmpty)) {
    findings.add(
        kFileBegin,
        "the English table is missing, empty or unreadable, so the app stops at its first text; restore it");
  } else if (isMissing) {
    findings.add(kFileBegin, "{}", table.diagnostics.front().message);
  } else if (!subject.isDirectoryListable) {
    findings.add(kFileBegin,
                 "the module skips this language: its directory cannot be listed; make it readable");
  }
}

/// Reports the errors that reading the file has found under the same rule.
template <const char* rule>
void findWhileReading(const CheckedTable& subject, Findings& findings) {
  for (const Diagnostic& diagnostic : subject.table.diagnostics) {
    if (diagnostic.rule == rule)
      findings.add(Position{diagnostic.line, diagnostic.column}, "{}", diagnostic.message);
  }
}

/// A rule for each entry by itself.
template <void (*find)(const TableEntry&, Findings&)>
void inEntries(const CheckedTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) find(entry, findings);
}

void findDuplicates(const CheckedTable& subject, Findings& findings) {
  std::map<std::string_view, const TableEntry*> firsts;
  for (const TableEntry& entry : subject.table.entries) {
    const auto [first, isNew] = firsts.try_emplace(entry.key, &entry);
    if (isNew) continue;
    const bool isSame = first->second->text == entry.text;
    findings.add(entry, entry.keyAt, "the key \"{}\" is already on line {}{}", escaped(entry.key),
                 first->second->keyAt.line,
                 isSame ? "; remove one of the two" : " with another text; keep the right one");
  }
}

void findReplacementCharacter(const TableEntry& entry, Findings& findings) {
  const std::size_t offset = entry.text.find("\uFFFD");
  if (offset == std::string::npos) return;
  findings.add(
      entry, offset,
      "the text has U+FFFD in place of a character that was lost in a conversion; write that character");
}

void findControlCharacterIn(const TableEntry& entry, Findings& findings) {
  const std::size_t offset = findControlCharacter(entry.text);
  if (offset == std::string::npos) return;
  findings.add(entry, offset,
               "the text has the control character U+{:04X}, which is invisible or shown as a "
               "box; remove it",
               static_cast<unsigned>(entry.text[offset]));
}

void findEmptyText(const TableEntry& entry, Findings& findings) {
  if (!isBlank(entry.text)) return;
  findings.add(entry, "the text of \"{}\" is empty, so users see nothing; write a text", escaped(entry.key));
}

void findUnknownEscapes(const TableEntry& entry, Findings& findings) {
  for (const auto& [at, spelled] : entry.unknownEscapes) {
    findings.add(
        entry, at,
        "unknown escape \"{}\"; remove the backslash, which users do not see, or write \"\\\\\" to show one",
        spelled);
  }
}

/// Returns why the tools do not understand a comment `state: ...`; empty if they do.
std::string errorInState(const std::vector<std::string_view>& words) {
  const std::vector<std::string_view> states = {nameOf(TranslationState::untranslated),
                                                nameOf(TranslationState::needsReview)};
  const auto previousEnglish = std::find(words.begin(), words.end(), "was");
  const std::string state = fmt::format("{}", fmt::join(words.begin(), previousEnglish, " "));
  if (std::find(states.begin(), states.end(), state) != states.end()) return "";
  const std::optional<std::string_view> meant = nearest(state, states);
  return fmt::format(
      "unknown state \"{}\"; {}", state,
      didYouMean(meant, fmt::format("write \"{}\", or remove the comment", fmt::join(states, "\" or \""))));
}

/// Returns why the tools do not understand a comment `check: ...`; empty if they do.
std::string errorInSwitch(const std::vector<std::string_view>& words) {
  if (words.size() < 2 || words[0] != "off") return "the comment has no effect; write \"check: off RULE\"";
  for (auto rule = words.begin() + 1; rule != words.end(); ++rule) {
    if (std::string error = errorInRuleName(*rule); !error.empty()) return error;
  }
  return "";
}

void findUnknownComments(const TableEntry& entry, Findings& findings) {
  for (const TableEntry::Comment& comment : entry.comments) {
    const auto state = wordsAfter(comment, kState);
    const auto off = wordsAfter(comment, kCheck);
    const std::string error = state ? errorInState(*state) : off ? errorInSwitch(*off) : "";
    if (!error.empty()) findings.add(entry, comment.at, "{}", error);
  }
}

/// Returns the keys that the module looks up and the table lacks.
std::vector<std::string_view> missingKeys(const CheckedTable& subject) {
  std::vector<std::string_view> missing;
  for (const EnglishText& english : subject.english->all()) {
    if (!subject.table.find(english.key)) missing.push_back(english.key);
  }
  return missing;
}

void findMissingEnglish(const CheckedTable& subject, Findings& findings) {
  if (subject.language != kBase || !isWellFormed(subject) || subject.table.entries.empty()) return;
  for (const std::string_view key : missingKeys(subject)) {
    findings.add(kFileBegin, "\"{}\" is missing from the English table; run zkstrings generate", key);
  }
}

/// Returns the key whose plural form `key` would be if it were a plural form.
std::string_view withoutSuffix(std::string_view key) {
  for (const PluralForm& form : kPluralForms) {
    if (key.ends_with(form.suffix)) return key.substr(0, key.size() - form.suffix.size());
  }
  return key;
}

/// Returns what to do about a key that differs from one that is looked up by the suffix of a plural form; else empty.
std::string fixForSuffix(std::string_view key, const CheckedTable& subject) {
  if (subject.english->find(std::string(key) + "_many"))
    return fmt::format("its entry has plural forms; write \"{0}_zero\" to \"{0}_many\" instead", key);
  const std::string_view bare = withoutSuffix(key);
  if (bare == key || !subject.english->find(bare)) return "";
  return fmt::format("\"{}\" has no plural forms; remove this entry", bare);
}

void findUnknownKeys(const CheckedTable& subject, Findings& findings) {
  std::vector<std::string_view> known = missingKeys(subject);  // the likeliest first
  for (const EnglishText& english : subject.english->all()) known.push_back(english.key);
  std::size_t searches = 100;  // the remaining ones, because each is slow
  for (const TableEntry& entry : subject.table.entries) {
    if (subject.english->find(entry.key)) continue;
    const std::string key = escaped(entry.key);
    std::string fix = fixForSuffix(key, subject);
    if (fix.empty()) {
      fix = didYouMean(searches > 0 ? nearest(key, known) : std::nullopt, "remove the entry");
      searches -= std::min<std::size_t>(searches, 1);
    }
    findings.add(entry, entry.keyAt, "unknown key \"{}\"; {}", key, fix);
  }
}

bool isTranslation(const CheckedTable& subject) {
  return subject.language != kBase && isWellFormed(subject);
}

/// Returns the entries of a translation that are in `state`, in the order of the catalogue.
std::vector<const TableEntry*> entriesIn(TranslationState state, const CheckedTable& subject) {
  std::vector<const TableEntry*> entries;
  if (!isTranslation(subject)) return entries;
  for (const EnglishText& english : subject.english->all()) {
    const TableEntry* const entry = subject.table.find(english.key);
    if (entry && stateOf(subject.language, entry, english) == state) entries.push_back(entry);
  }
  return entries;
}

/// "1 text", "12 texts".
std::string texts(std::size_t count) {
  return fmt::format("{} text{}", count, count == 1 ? "" : "s");
}

void findMissing(const CheckedTable& subject, Findings& findings) {
  const std::size_t missing = isTranslation(subject) ? missingKeys(subject).size() : 0;
  if (missing > 0)
    findings.add(kFileBegin, "{} missing; zkstrings update {} adds {} in English", texts(missing),
                 subject.language, missing == 1 ? "it" : "them");
}

void findUntranslated(const CheckedTable& subject, Findings& findings) {
  const std::vector<const TableEntry*> entries = entriesIn(TranslationState::untranslated, subject);
  if (entries.empty()) return;
  const auto isBefore = [](const TableEntry* one, const TableEntry* other) {
    return one->span.begin < other->span.begin;
  };
  const TableEntry* const first = *std::min_element(entries.begin(), entries.end(), isBefore);
  findings.add(first->textAt, "{} untranslated, starting here; zkstrings update {} marks {}",
               texts(entries.size()), subject.language, entries.size() == 1 ? "it" : "them");
}

void findNeedsReview(const CheckedTable& subject, Findings& findings) {
  for (const TableEntry* const entry : entriesIn(TranslationState::needsReview, subject)) {
    const bool isMarked = zk::tools::isMarked(*entry, TranslationState::needsReview);
    const std::optional<std::string> before = quotedIn(*entry, isMarked ? kState : kExplanation);
    findings.add(*entry, "the English text of \"{}\" has changed{}; correct the translation, then {}",
                 escaped(entry->key), before ? fmt::format(" from \"{}\"", escaped(*before)) : "",
                 isMarked ? "remove the comment \"state:\"" : "the comment \"English:\" before it");
  }
}

/// A rule that compares the table with the catalogue.
template <void (*find)(const CheckedTable&, Findings&)>
void withCatalogue(const CheckedTable& subject, Findings& findings) {
  if (subject.english) find(subject, findings);
}

constexpr RuleFor<CheckedTable> kRules[] = {
    {{"language-directory", Severity::error, "a directory that the module never uses because of its name"},
     findDirectory},
    {{Table::kMissing, Severity::error, "a language's directory without a readable table"}, findMissingTable},
    {{Table::kEncoding, Severity::error, "bytes that are invalid in the file's encoding"},
     findWhileReading<Table::kEncoding>},
    {{Table::kSyntax, Severity::error, "a table with a syntax error; the module ignores the whole table"},
     findWhileReading<Table::kSyntax>},
    {{"duplicate-key", Severity::error, "a key that occurs twice in the table"}, findDuplicates},
    {{"replacement-character", Severity::error, "U+FFFD in a text"}, inEntries<findReplacementCharacter>},
    {{"control-character", Severity::error, "a control character in a text, except line breaks and tabs"},
     inEntries<findControlCharacterIn>},
    {{"empty-text", Severity::warning, "a text that is empty or only white space"}, inEntries<findEmptyText>},
    {{"unknown-escape", Severity::warning, "a backslash that does not begin a known escape sequence"},
     inEntries<findUnknownEscapes>},
    {{"unknown-comment", Severity::warning,
      "a comment \"state:\" or \"check:\" that the tools do not understand"},
     inEntries<findUnknownComments>},
    {{"missing-english", Severity::warning, "a key of the catalogue that is missing from the English table"},
     withCatalogue<findMissingEnglish>},
    {{"unknown-key", Severity::warning, "a key that the app never looks up"}, withCatalogue<findUnknownKeys>},
    {{"missing-key", Severity::gap, "texts that are missing from a translation's table"},
     withCatalogue<findMissing>},
    {{kUntranslatedRule, Severity::gap, "texts that are still in English"}, withCatalogue<findUntranslated>},
    {{"needs-review", Severity::gap, "a translation whose English text has changed"},
     withCatalogue<findNeedsReview>},
};

}  // namespace

std::span<const RuleFor<CheckedTable>> tableRules() {
  return kRules;
}

}  // namespace zk::tools
