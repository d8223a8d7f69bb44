#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/System.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace zk::tools {

namespace {

bool takesColours(std::FILE* stream) {
  const char* const refusal = std::getenv("NO_COLOR");
  return isTerminal(stream) && (refusal == nullptr || *refusal == '\0');
}

}  // namespace

std::string wrapped(std::string_view text, std::size_t width, std::size_t indent) {
  std::string result;
  std::size_t column = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    const std::size_t length = lengthOf(word);
    const bool isFirst = result.empty();
    const bool fits = column + 1 + length <= width;
    if (!isFirst) result += fits ? " " : '\n' + std::string(indent, ' ');
    column = isFirst || !fits ? length : column + 1 + length;
    result += word;
  }
  return result;
}

void print(std::FILE* stream, std::string_view text) {
  std::fputs(withoutControls(text, true).c_str(), stream);
}

void print(std::FILE* stream, const Diagnostics& diagnostics) {
  const bool coloured = takesColours(stream);
  for (const Diagnostic& diagnostic : diagnostics)
    std::fputs((formatted(diagnostic, coloured) + "\n").c_str(), stream);
}

}  // namespace zk::tools
