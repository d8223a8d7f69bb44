#include <ZKStrings/tools/check/Prose.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>

namespace zk::tools {

namespace {

void blankOut(std::string& text, std::size_t offset, std::size_t size) {
  std::fill_n(text.begin() + static_cast<std::ptrdiff_t>(offset), size, ' ');
}

void blankOutAll(std::string& text, std::string_view part) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
    blankOut(text, at, part.size());
  }
}

/// Whether `run`, ASCII without white space, is a handle or an address: "@zk", "help@zk.example", "zk.example/x".
bool isAddress(std::string_view run) {
  if (run.find('@') != std::string_view::npos || run.find("://") != std::string_view::npos) return true;
  for (std::size_t dot = run.find('.'); dot != std::string_view::npos; dot = run.find('.', dot + 1)) {
    const bool isWithin = dot > 0 && dot + 1 < run.size();
    if (isWithin && isAsciiLetterOrDigit(run[dot - 1]) && isAsciiLetterOrDigit(run[dot + 1])) return true;
  }
  return false;
}

void blankOutAddresses(std::string& text) {
  const auto isInRun = [](char c) { return c > ' ' && c < '\x7F'; };
  for (auto begin = text.begin(); begin != text.end();) {
    begin = std::find_if(begin, text.end(), isInRun);
    const auto end = std::find_if_not(begin, text.end(), isInRun);
    if (isAddress({begin, end})) std::fill(begin, end, ' ');
    begin = end;
  }
}

bool hasCapitals(std::string_view word) {
  for (const CodePoint letter : CodePoints(word)) {
    if (letter.value && u_isUUppercase(static_cast<UChar32>(*letter.value))) return true;
  }
  return false;
}

}  // namespace

std::string caseFolded(std::string_view text) {
  std::string folded;
  icu::StringByteSink<std::string> sink(&folded);
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8Fold(0, {text.data(), static_cast<std::int32_t>(text.size())}, sink, nullptr, status);
  return folded;
}

std::string proseOf(std::string_view text) {
  std::string prose(text);
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (use.isRight) blankOut(prose, use.offset, use.spelled.size());
  }
  for (const std::string_view tag : {"<b>", "</b>"}) blankOutAll(prose, tag);
  blankOutAddresses(prose);
  return prose;
}

Words proseWords(std::string_view text) {
  const std::string prose = proseOf(text);
  Words words;
  for (const std::string_view word : wordsOf(prose))
    words.push_back(
        {static_cast<std::size_t>(word.data() - prose.data()), std::string(word), caseFolded(word)});
  return words;
}

bool Phrase::Pattern::matches(const Word& word) const {
  const std::string_view here = hasCapitals ? word.spelled : word.folded;
  if (isOpenBefore && isOpenAfter) return here.find(text) != std::string_view::npos;
  if (isOpenBefore) return here.ends_with(text);
  return isOpenAfter ? here.starts_with(text) : here == text;
}

Phrase::Phrase(std::string_view spelled) {
  for (const std::string_view word : wordsOf(spelled)) {
    const auto begin = static_cast<std::size_t>(word.data() - spelled.data());
    const std::size_t end = begin + word.size();
    const bool isCapital = hasCapitals(word);
    patterns_.push_back({isCapital ? std::string(word) : caseFolded(word), isCapital,
                         begin > 0 && spelled[begin - 1] == '*',
                         end < spelled.size() && spelled[end] == '*'});
  }
}

std::size_t Phrase::sizeAt(const Words& words, std::size_t at) const {
  if (patterns_.size() > words.size() - at) return 0;
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    if (!patterns_[i].matches(words[at + i])) return 0;
  }
  return patterns_.size();
}

Phrases phrasesOf(const std::vector<std::string>& spelled) {
  return {spelled.begin(), spelled.end()};
}

std::size_t sizeAt(const Phrases& phrases, const Words& words, std::size_t at) {
  for (const Phrase& phrase : phrases) {
    if (const std::size_t size = phrase.sizeAt(words, at); size > 0) return size;
  }
  return 0;
}

}  // namespace zk::tools
