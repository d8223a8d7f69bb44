#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

/// Whether an entry with the English text is probably not translated yet.
bool looksUntranslated(const TableEntry& entry, const CatalogueSettings& settings) {
  return wordsToRead(withoutPlaceholders(entry.text)).size() > 1 && !settings.isSameEverywhere(entry.text) &&
         !isTurnedOff(entry, kUntranslatedRule);
}

/// `text` in quotes, for a comment of a table.
std::string quotedForComment(std::string_view text) {
  // No text may end the comment; the backslash is lost when the text is read again.
  return '"' + replaceAll(escaped(text), "*/", "*\\/") + '"';
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

std::optional<std::vector<std::string_view>> wordsAfter(const TableEntry::Comment& comment,
                                                        std::string_view name) {
  constexpr std::string_view kSeparators = " ,;\t\r\n";
  std::string_view rest = comment.text;
  const auto skipSeparators = [&] {
    rest.remove_prefix(std::min(rest.find_first_not_of(kSeparators), rest.size()));
  };
  std::vector<std::string_view> words;
  skipSeparators();
  if (!rest.starts_with(name)) return std::nullopt;
  rest.remove_prefix(name.size());
  for (skipSeparators(); !rest.empty(); skipSeparators()) {
    words.push_back(rest.substr(0, rest.find_first_of(kSeparators)));
    rest.remove_prefix(words.back().size());
  }
  return words;
}

std::optional<std::string> quotedIn(const TableEntry& entry, std::string_view name) {
  for (const TableEntry::Comment& comment : entry.comments) {
    if (!wordsAfter(comment, name)) continue;
    const std::size_t begin = comment.text.find('"') + 1;
    std::size_t end = begin;
    while (begin > 0 && end < comment.text.size() && comment.text[end] != '"')
      end += comment.text[end] == '\\' ? 2U : 1U;
    if (begin == 0 || end >= comment.text.size()) continue;
    std::string text = comment.text.substr(begin, end - begin);
    text.resize(unescape(text.data(), text.size()));
    return text;
  }
  return std::nullopt;
}

bool isTurnedOff(const TableEntry& entry, std::string_view rule) {
  return std::ranges::any_of(entry.comments, [&](const TableEntry::Comment& comment) {
    const auto words = wordsAfter(comment, kCheck);
    return words && !words->empty() && words->front() == "off" &&
           std::ranges::find(words->begin() + 1, words->end(), rule) != words->end();
  });
}

bool isMarked(const TableEntry& entry, TranslationState state) {
  return std::ranges::any_of(entry.comments, [&](const TableEntry::Comment& comment) {
    const auto words = wordsAfter(comment, kState);
    return words && !words->empty() && words->front() == nameOf(state);
  });
}

std::string markFor(TranslationState state, std::string_view previousEnglish) {
  const bool hasPrevious = state == TranslationState::needsReview && !previousEnglish.empty();
  const std::string previous = !hasPrevious ? "" : fmt::format("; was {}", quotedForComment(previousEnglish));
  return fmt::format("/* {} {}{} */", kState, nameOf(state), previous);
}

std::string explanationOf(const EnglishText& english) {
  std::string about = fmt::format("/* {} {}", kExplanation, quotedForComment(english.text));
  const std::vector<std::string_view> names = english.placeholders();
  if (!names.empty()) about += fmt::format("; placeholders: %{{{}}}", fmt::join(names, "}, %{"));
  return about + " */";
}

std::string contextOf(const EnglishText& english) {
  const std::string context = english.entry->context();
  return context.empty() ? "" : fmt::format("/* {} {} */", kContext, context);
}

}  // namespace zk::tools
