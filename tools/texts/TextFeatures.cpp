#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/uchar.h>

namespace zk::tools {

namespace {

bool isWhiteSpace(const CodePoint& character) {
  return character.value && u_isUWhiteSpace(static_cast<UChar32>(*character.value)) != 0;
}

bool isSpace(const CodePoint& character) {
  return character.value && u_charType(static_cast<UChar32>(*character.value)) == U_SPACE_SEPARATOR;
}

}  // namespace

std::size_t findControlCharacter(std::string_view text) {
  const auto found = std::find_if(text.begin(), text.end(), [](char character) {
    return (static_cast<unsigned char>(character) < 0x20 && character != '\n' && character != '\t') ||
           character == 0x7F;
  });
  return found == text.end() ? text.npos : static_cast<std::size_t>(found - text.begin());
}

bool hasCarriageReturnOrNul(std::string_view text) {
  return text.find_first_of(std::string_view("\r\0", 2)) != text.npos;
}

bool isBlank(std::string_view text) {
  for (const CodePoint character : CodePoints(text)) {
    if (!isWhiteSpace(character)) return false;
  }
  return true;
}

OuterSpace outerSpace(std::string_view text) {
  OuterSpace space;
  bool isLeading = true;
  for (const CodePoint character : CodePoints(text)) {
    std::string& run = isLeading ? space.leading : space.trailing;
    if (isWhiteSpace(character)) {
      run += isSpace(character) ? " " : character.bytes;
    } else {
      isLeading = false;
      space.trailing.clear();
    }
  }
  return space;
}

std::size_t countOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
    ++count;
  return count;
}

std::string withoutPlaceholders(std::string_view text) {
  std::string result;
  std::size_t begin = 0;
  for (const PlaceholderUse& use : placeholderUses(text)) {
    if (!use.isRight) continue;
    result.append(text.substr(begin, use.offset - begin)).append(" ");
    begin = use.offset + use.spelled.size();
  }
  return result.append(text.substr(begin));
}

std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  std::size_t begin = 0;
  std::size_t end = 0;
  const auto finish = [&] {
    if (end > begin) words.push_back(text.substr(begin, end - begin));
  };
  for (const CodePoint character : CodePoints(text)) {
    const bool isInWord = character.value && isLetterMarkOrDigit(*character.value);
    if (!isInWord) finish();
    end += character.bytes.size();
    if (!isInWord) begin = end;
  }
  finish();
  return words;
}

std::vector<std::string> numbersIn(std::string_view text) {
  std::vector<std::string> numbers;
  bool isInNumber = false;
  for (const CodePoint character : CodePoints(text)) {
    const bool isDigit = character.value && isDecimalDigit(*character.value);
    if (isDigit && !isInNumber) numbers.emplace_back();
    if (isDigit)
      numbers.back() += static_cast<char>('0' + u_charDigitValue(static_cast<UChar32>(*character.value)));
    isInNumber = isDigit;
  }
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

std::vector<std::string_view> wordsToRead(std::string_view text) {
  std::vector<std::string_view> words = wordsOf(text);
  std::erase_if(words,
                [](std::string_view word) { return lengthOf(word) == 1 || numbersIn(word).size() == 1; });
  return words;
}

std::size_t charactersIn(std::string_view text) {
  std::size_t characters = 0;
  for (; !text.empty(); ++characters) text.remove_prefix(internal::firstClusterSize(text));
  return characters;
}

}  // namespace zk::tools
