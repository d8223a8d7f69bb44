#include <ZKStrings/tools/check/TableRules.h>
#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/support/Nearest.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

constexpr Position kFileBegin = {1, 1};
constexpr std::string_view kReplacementCharacter = "\uFFFD";

void findDirectory(const LanguageTable& subject, Findings& findings) {
  std::string reason = whyNeverChosen(subject.language);
  if (!reason.empty()) findings.add(kFileBegin, std::move(reason));
}

void findMissingTable(const LanguageTable& subject, Findings& findings) {
  const Table& table = subject.table;
  const bool isMissing = !table.diagnostics.empty() && table.diagnostics.front().rule == Table::kMissing;
  const bool isEmpty = table.diagnostics.empty() && table.entries.empty();
  if (subject.language == kBase && (isMissing || isEmpty)) {
    findings.add(kFileBegin,
                 "the English table is missing, empty or not readable, and without it an app stops at its "
                 "first text; restore it");
  } else if (isMissing) {
    findings.add(kFileBegin, table.diagnostics.front().message);
  } else if (!subject.isDirectoryListable) {
    findings.add(kFileBegin,
                 "the module skips this language: its directory cannot be listed; allow reading it");
  }
}

/// What reading the file has found already.
template <const char* rule>
void findWhileReading(const LanguageTable& subject, Findings& findings) {
  for (const Diagnostic& diagnostic : subject.table.diagnostics) {
    if (diagnostic.rule == rule) findings.add({diagnostic.line, diagnostic.column}, diagnostic.message);
  }
}

void findDuplicates(const LanguageTable& subject, Findings& findings) {
  std::map<std::string_view, std::size_t> lines;
  for (const TableEntry& entry : subject.table.entries) {
    const auto [first, isNew] = lines.try_emplace(entry.key, entry.keyAt.line);
    if (isNew) continue;
    findings.add(entry, entry.keyAt,
                 fmt::format("the key \"{}\" stands already in line {}; remove one of the two",
                             escaped(entry.key), first->second));
  }
}

void findReplacementCharacters(const LanguageTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) {
    const std::size_t offset = entry.text.find(kReplacementCharacter);
    if (offset == std::string::npos) continue;
    findings.add(entry, TextPlaces(entry).at(offset),
                 "U+FFFD stands in the text, where a conversion has lost a character; write the character");
  }
}

void findControlCharacters(const LanguageTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) {
    const std::size_t offset = findControlCharacter(entry.text);
    if (offset == std::string::npos) continue;
    findings.add(
        entry, TextPlaces(entry).at(offset),
        fmt::format("the control character U+{:04X} stands in the text, which shows as nothing or as a "
                    "box; remove it",
                    static_cast<unsigned>(entry.text[offset])));
  }
}

void findEmptyTexts(const LanguageTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) {
    if (isBlank(entry.text)) {
      findings.add(entry, fmt::format("the text of \"{}\" is empty, and so is what users see; write a text",
                                      escaped(entry.key)));
    }
  }
}

void findUnknownEscapes(const LanguageTable& subject, Findings& findings) {
  for (const TableEntry& entry : subject.table.entries) {
    for (const auto& [at, spelled] : entry.unknownEscapes) {
      findings.add(
          entry, at,
          fmt::format("the escape \"{}\" is unknown, and its backslash lost; remove the backslash, or "
                      "write \"\\\\\" when it is meant to show",
                      spelled));
    }
  }
}

void findUnknownStates(const LanguageTable& subject, Findings& findings) {
  const std::vector<std::string_view> states = {nameOf(TranslationState::untranslated),
                                                nameOf(TranslationState::needsReview)};
  for (const TableEntry& entry : subject.table.entries) {
    for (const TableEntry::Comment& comment : entry.comments) {
      const std::string state = fmt::format("{}", fmt::join(wordsTold(comment, kState), " "));
      if (state.empty() || std::find(states.begin(), states.end(), state) != states.end()) continue;
      const std::optional<std::string_view> meant = nearest(state, states);
      findings.add(entry, comment.at,
                   fmt::format("no entry is marked as \"{}\"; {}", state,
                               didYouMean(meant, fmt::format("write \"{}\", or remove the comment",
                                                             fmt::join(states, "\" or \"")))));
    }
  }
}

constexpr RuleFor<LanguageTable> kRules[] = {
    {{"language-directory", Severity::error, "a directory that the module never chooses, by its name"},
     findDirectory},
    {{Table::kMissing, Severity::error, "a language's directory without a table that can be read"},
     findMissingTable},
    {{Table::kEncoding, Severity::error, "bytes that are no text in the file's encoding"},
     findWhileReading<Table::kEncoding>},
    {{Table::kSyntax, Severity::error, "a table that is not well formed: the module reads nothing of it"},
     findWhileReading<Table::kSyntax>},
    {{"duplicate-key", Severity::error, "a key that stands twice in a table"}, findDuplicates},
    {{"replacement-character", Severity::error, "U+FFFD in a text"}, findReplacementCharacters},
    {{"control-character", Severity::error, "a control character in a text, line breaks and tabs aside"},
     findControlCharacters},
    {{"empty-text", Severity::warning, "a text of nothing or white space"}, findEmptyTexts},
    {{"unknown-escape", Severity::warning, "a backslash before a character that it gives no meaning"},
     findUnknownEscapes},
    {{"unknown-state", Severity::warning, "a comment \"state:\" with another word than those it may have"},
     findUnknownStates},
};

}  // namespace

std::span<const RuleFor<LanguageTable>> tableRules() {
  return kRules;
}

}  // namespace zk::tools
