#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/tools/project/EntryComments.h>
#include <ZKStrings/tools/support/Characters.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

std::optional<std::vector<std::string_view>> wordsTold(const TableEntry::Comment& comment,
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

std::string quotedForComment(std::string_view text) {
  // No text may end the comment; the backslash is lost when the text is read again.
  return '"' + replaceAll(escaped(text), "*/", "*\\/") + '"';
}

std::optional<std::string> quotedIn(const TableEntry& entry, std::string_view name) {
  for (const TableEntry::Comment& comment : entry.comments) {
    if (!wordsTold(comment, name)) continue;
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

bool isSwitchedOff(const TableEntry& entry, std::string_view rule) {
  return std::any_of(entry.comments.begin(), entry.comments.end(), [&](const TableEntry::Comment& comment) {
    const auto words = wordsTold(comment, kCheck);
    return words && !words->empty() && words->front() == "off" &&
           std::find(words->begin() + 1, words->end(), rule) != words->end();
  });
}

}  // namespace zk::tools
