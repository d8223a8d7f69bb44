#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/Characters.h>

namespace zk::tools {

std::size_t lengthOf(std::string_view text) {
  std::size_t length = 0;
  for (; !text.empty(); ++length) text.remove_prefix(firstCodePoint(text).bytes.size());
  return length;
}

std::string lowerCased(std::string_view text) {
  std::string result(text);
  for (char& letter : result) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return result;
}

}  // namespace zk::tools
