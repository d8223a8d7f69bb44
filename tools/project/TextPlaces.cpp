#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/tools/project/TextPlaces.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace zk::tools {

namespace {

/// Returns the size in bytes of the text that is spelled as `spelled`.
std::size_t textSize(std::string_view spelled) {
  std::string text(spelled);
  return unescape(text.data(), text.size());
}

/// Returns where the next escape after `begin` begins, or the end.
std::size_t nextEscape(std::string_view spelled, std::size_t begin) {
  const bool isEscape = spelled.substr(begin).starts_with('\\');
  return std::min(spelled.find('\\', begin + (isEscape ? 2 : 0)), spelled.size());
}

}  // namespace

TextPlaces::TextPlaces(const TableEntry& entry)
    : spelled_(entry.spelled), positions_(spelled_, entry.textAt) {
}

void TextPlaces::readOn() {
  const std::size_t begin = piece_.end;
  const std::size_t end = nextEscape(spelled_, begin);
  const std::size_t endOfTwo = nextEscape(spelled_, end);
  const std::size_t size = textSize(spelled_.substr(begin, end - begin));
  const std::size_t sizeOfTwo = textSize(spelled_.substr(begin, endOfTwo - begin));
  // Two escapes that together spell fewer bytes than each by itself are one character, a surrogate pair.
  const bool isPair = sizeOfTwo < size + textSize(spelled_.substr(end, endOfTwo - end));
  piece_ = {begin, isPair ? endOfTwo : end};
  text_ = {text_.end, text_.end + (isPair ? sizeOfTwo : size)};
}

Position TextPlaces::at(std::size_t offset) {
  while (text_.end <= offset && piece_.end < spelled_.size()) readOn();
  // Only an escape has another size than the character that it spells, and it is at the beginning.
  const std::size_t bytesAfter = text_.end - std::min(offset, text_.end);
  return positions_.at(offset <= text_.begin ? piece_.begin : piece_.end - bytesAfter);
}

}  // namespace zk::tools
