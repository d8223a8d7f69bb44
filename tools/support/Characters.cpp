#include <ZKStrings/tools/support/Characters.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <fmt/format.h>

namespace zk::tools {

std::string_view lastCodePoint(std::string_view text) {
  std::size_t begin = text.size();
  while (begin > 0) {
    --begin;
    if (!isContinuationByte(text[begin])) break;
  }
  return text.substr(begin);
}

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

std::string withoutControls(std::string_view text, bool keepsLines) {
  std::string result;
  for (const CodePoint next : CodePoints(text)) {
    const char32_t value = next.value.value_or(U' ');
    const bool isControl = value < 0x20 || (value >= 0x7F && value < 0xA0);
    if (isControl && !(keepsLines && value == '\n')) {
      result += fmt::format("\\U{:04x}", std::uint32_t{value});
    } else {
      result += next.bytes;
    }
  }
  return result;
}

}  // namespace zk::tools
