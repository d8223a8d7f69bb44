#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/check/EndPunctuation.h>
#include <ZKStrings/tools/support/Characters.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include <unicode/uchar.h>

namespace zk::tools {

namespace {

struct Punctuation {
  Ending ending;
  std::string_view marks;
};

/// The marks of all scripts. An ellipsis may also be three dots.
constexpr Punctuation kPunctuation[] = {
    {Ending::stop, ".。．｡।॥۔։។။།።᠃"}, {Ending::question, "?？؟፧՞\u037E⁇⁉"},
    {Ending::exclamation, "!！՜⁈‼"},   {Ending::ellipsis, "…⋯‥"},
    {Ending::colon, ":：፡"},           {Ending::semicolon, ";；؛"},
    {Ending::comma, ",，、､،"}};

/// Closing quotes and brackets, including quotes that open in other languages. A brace is excluded: it closes a placeholder.
bool isClosingMark(UChar32 character) {
  constexpr std::string_view kAscii = "\"'*";
  if (character < 0x80 && kAscii.find(static_cast<char>(character)) != std::string_view::npos) return true;
  constexpr std::uint32_t kMarks = U_GC_PE_MASK | U_GC_PF_MASK | U_GC_PI_MASK;
  return character != '}' && (U_GET_GC_MASK(character) & kMarks) != 0;
}

bool isPartOfEmoji(UChar32 character) {
  constexpr UChar32 kVariationSelector = 0xFE0F;
  constexpr UProperty kProperties[] = {UCHAR_EXTENDED_PICTOGRAPHIC, UCHAR_EMOJI_MODIFIER,
                                       UCHAR_REGIONAL_INDICATOR};
  if (character == 0x203C || character == 0x2049) return false;  // ‼ and ⁉ are punctuation as well
  return character == kVariationSelector ||
         std::any_of(std::begin(kProperties), std::end(kProperties),
                     [&](UProperty property) { return u_hasBinaryProperty(character, property) != 0; });
}

/// Whether the character may follow the final punctuation.
bool isPassedOver(std::string_view character) {
  const CodePoint codePoint = firstCodePoint(character);
  if (!codePoint.value) return false;
  const auto value = static_cast<UChar32>(*codePoint.value);
  return u_isUWhiteSpace(value) || u_charType(value) == U_FORMAT_CHAR || isClosingMark(value) ||
         isPartOfEmoji(value);
}

std::string_view withoutWhatFollows(std::string_view text) {
  constexpr std::string_view kTag = "</b>";
  while (!text.empty()) {
    const std::size_t passed = text.ends_with(kTag)                ? kTag.size()
                               : isPassedOver(lastCodePoint(text)) ? lastCodePoint(text).size()
                                                                   : 0;
    if (passed == 0) break;
    text.remove_suffix(passed);
  }
  return text;
}

bool isOrdinal(std::string_view text) {
  const std::string_view number = text.substr(0, text.find('.'));
  return number.size() + 1 == text.size() && !number.empty() &&
         number.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

Ending endingOf(std::string_view text, std::string_view language) {
  text = withoutWhatFollows(text);
  if (text.empty() || isOrdinal(text)) return Ending::none;
  if (text.ends_with("...") || text.ends_with("。。。")) return Ending::ellipsis;
  const std::string_view last = lastCodePoint(text);
  for (const auto& [ending, marks] : kPunctuation) {
    if (marks.find(last) == marks.npos) continue;
    return language == "el" && ending == Ending::semicolon ? Ending::question : ending;
  }
  return Ending::none;
}

std::string_view nameOf(Ending ending) {
  constexpr std::string_view kNames[] = {"no punctuation",      "a full stop", "a question mark",
                                         "an exclamation mark", "an ellipsis", "a colon",
                                         "a semicolon",         "a comma"};
  return kNames[static_cast<std::size_t>(ending)];
}

}  // namespace zk::tools
