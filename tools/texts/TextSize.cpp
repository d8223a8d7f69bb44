#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/texts/TextSize.h>

#include <algorithm>
#include <cstdint>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

namespace zk::tools {

namespace {

constexpr char32_t kEmojiPresentation = 0xFE0F;

bool isWide(char32_t codePoint) {
  const auto character = static_cast<UChar32>(codePoint);
  const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH || codePoint == kEmojiPresentation ||
         u_hasBinaryProperty(character, UCHAR_EMOJI_PRESENTATION) != 0;
}

bool isInvisible(char32_t codePoint) {
  constexpr std::uint32_t kInvisible = U_GC_CF_MASK | U_GC_CC_MASK | U_GC_ME_MASK | U_GC_MN_MASK;
  return (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & kInvisible) != 0;
}

std::size_t columnsOf(std::string_view character) {
  std::size_t columns = 0;
  while (!character.empty()) {
    const CodePoint next = firstCodePoint(character);
    character.remove_prefix(next.bytes.size());
    if (!next.value || !isInvisible(*next.value)) columns = std::max<std::size_t>(columns, 1);
    if (next.value && isWide(*next.value)) columns = 2;
  }
  return columns;
}

icu::BreakIterator& characterBorders() {
  static thread_local const std::unique_ptr<icu::BreakIterator> borders = [] {
    UErrorCode status = U_ZERO_ERROR;
    return std::unique_ptr<icu::BreakIterator>(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  }();
  return *borders;
}

}  // namespace

TextSize sizeOf(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  UText view = UTEXT_INITIALIZER;
  utext_openUTF8(&view, text.data(), static_cast<std::int64_t>(text.size()), &status);
  icu::BreakIterator& borders = characterBorders();
  borders.setText(&view, status);
  TextSize size;
  for (std::int32_t begin = borders.first(), end = borders.next(); end != icu::BreakIterator::DONE;
       begin = end, end = borders.next()) {
    ++size.characters;
    size.columns +=
        columnsOf(text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
  }
  utext_close(&view);
  return size;
}

}  // namespace zk::tools
