#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace zk {

namespace {

/// The letter after the backslash that means `character` in source code; 0 if it is not escaped.
char escapeLetter(std::string_view character) {
  const std::size_t place = std::string_view("\n\t\r").find(character);
  return place < 3 ? "ntr"[place] : '\0';
}

}  // namespace

std::string keyForText(std::string_view text) {
  std::string key;
  std::size_t length = 0;
  const auto append = [&](std::string_view character) {
    if (length == kLongestKey) return;
    key += character;
    ++length;
  };
  bool isAfterGap = false;
  while (!text.empty()) {
    const CodePoint next = firstCodePoint(text);
    text.remove_prefix(next.bytes.size());
    const char escape = escapeLetter(next.bytes);
    const bool isKept = next.value && isLetterMarkOrDigit(*next.value);
    if (!isKept) isAfterGap = true;  // also for an escape, because the backslash before its letter is a gap
    if (!isKept && escape == 0) continue;

    const bool beginsWithDigit = key.empty() && isKept && isDecimalDigit(*next.value);
    if (beginsWithDigit || (isAfterGap && !key.empty())) append("_");
    append(isKept ? next.bytes : std::string_view(&escape, 1));
    isAfterGap = false;
  }
  return key;
}

}  // namespace zk
