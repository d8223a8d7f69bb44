#include <ZKStrings/tools/support/Characters.h>

#include <algorithm>

namespace zk::tools {

std::size_t lengthOf(std::string_view text) {
  std::size_t length = 0;
  for (CodePoints left(text); left != left.end(); ++left) ++length;
  return length;
}

std::string lowerCased(std::string_view text) {
  std::string result(text);
  for (char& letter : result) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return result;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t at = 0;
  for (std::size_t found = text.find(from); found != text.npos; found = text.find(from, at)) {
    result.append(text, at, found - at).append(to);
    at = found + from.size();
  }
  return result.append(text, at);
}

std::string wrapped(std::string_view text, std::size_t width, std::size_t indent) {
  std::string result;
  std::size_t column = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    const std::size_t length = lengthOf(word);
    const bool isFirst = result.empty();
    const bool fits = column + 1 + length <= width;
    if (!isFirst) result += fits ? " " : "\n" + std::string(indent, ' ');
    column = isFirst || !fits ? length : column + 1 + length;
    result += word;
  }
  return result;
}

}  // namespace zk::tools
