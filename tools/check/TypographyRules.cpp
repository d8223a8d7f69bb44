#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/check/Prose.h>
#include <ZKStrings/tools/check/TextRules.h>

#include <algorithm>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kNoBreakSpace = "\u00A0";

/// The quotation marks of all languages, but for the one that is an apostrophe too.
constexpr std::string_view kQuotationMarks[] = {"\"", "„", "“",  "”",  "‟",  "‚",  "‘",  "‛",  "«",  "»",
                                                "‹",  "›", "「", "」", "『", "』", "〝", "〞", "〟", "＂"};

/// The character that ends before the byte `end`; empty at the beginning of the text.
std::string_view characterBefore(std::string_view text, std::size_t end) {
  std::size_t begin = end;
  while (begin > 0 && (static_cast<unsigned char>(text[--begin]) & 0xC0) == 0x80) {
  }
  return text.substr(begin, end - begin);
}

std::string_view characterAt(std::string_view text, std::size_t at) {
  return at < text.size() ? firstCodePoint(text.substr(at)).bytes : std::string_view();
}

bool isLetter(std::string_view character) {
  if (character.empty()) return false;
  const CodePoint codePoint = firstCodePoint(character);
  return codePoint.value && isLetterMarkOrDigit(*codePoint.value) && !isDecimalDigit(*codePoint.value);
}

bool isDigit(std::string_view character) {
  return !character.empty() && character[0] >= '0' && character[0] <= '9';
}

void addAt(std::size_t offset, const Translation& translation, std::string message, Findings& findings) {
  findings.add(translation.entry, TextPlaces(translation.entry).at(offset), std::move(message));
}

void findQuotationMarks(const Translation& translation, Findings& findings) {
  const std::string& right = translation.glossary.styleOf(translation.language).quotationMarks;
  if (right.empty()) return;
  for (const std::string_view mark : kQuotationMarks) {
    const std::size_t offset = translation.entry.text.find(mark);
    if (offset == std::string::npos || right.find(mark) != std::string::npos) continue;
    addAt(offset, translation,
          fmt::format("{} is none of the language's quotation marks; write {}", mark, right), findings);
  }
}

/// Also a straight quotation mark, where it stands for one.
void findApostrophes(const Translation& translation, Findings& findings) {
  const std::size_t offset = translation.entry.text.find('\'');
  if (offset == std::string::npos) return;
  addAt(offset, translation, "the apostrophe is straight; write ’", findings);
}

void findDots(const Translation& translation, Findings& findings) {
  const std::size_t offset = translation.entry.text.find("...");
  if (offset == std::string::npos) return;
  addAt(offset, translation, "three dots stand for an ellipsis; write …", findings);
}

bool isBlankAt(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  return rest.starts_with(' ') || rest.starts_with(kNoBreakSpace);
}

void findDoubledBlanks(const Translation& translation, Findings& findings) {
  const std::string_view text = translation.entry.text;
  for (std::size_t at = 0; at < text.size(); at += characterAt(text, at).size()) {
    if (!isBlankAt(text, at) || !isBlankAt(text, at + characterAt(text, at).size())) continue;
    return addAt(at, translation, "two blanks stand in a row; write one", findings);
  }
}

/// Whether `mark`, which stands at `at`, needs no no-break space before it: at the beginning of the text or
/// of a line, within a number or a word, behind another such mark, a bracket or a quotation mark.
bool standsClose(std::string_view mark, std::string_view text, std::size_t at, const LanguageStyle& style) {
  const std::string_view before = characterBefore(text, at);
  if (before.empty() || before == "\n" || before == "(") return true;
  const bool isWithinNumber = isDigit(before) && isDigit(characterAt(text, at + mark.size()));
  const bool isWithinWord = isLetter(before) && isLetter(characterAt(mark, 0));
  const bool isBehindMark =
      std::find(style.noBreakBefore.begin(), style.noBreakBefore.end(), before) != style.noBreakBefore.end();
  return isWithinNumber || isWithinWord || isBehindMark ||
         style.quotationMarks.find(before) != std::string::npos;
}

/// Adds a finding for each `mark` in `text`, the prose of `translation`, for which `isMissing(offset)` is
/// true.
template <class IsMissing>
void findWithoutSpace(std::string_view mark, std::string_view text, std::string_view side,
                      const Translation& translation, const IsMissing& isMissing, Findings& findings) {
  TextPlaces places(translation.entry);
  for (std::size_t at = text.find(mark); at != std::string_view::npos;
       at = text.find(mark, at + mark.size())) {
    if (!isMissing(at)) continue;
    findings.add(translation.entry, places.at(at),
                 fmt::format("\"{}\" has no no-break space (U+00A0) {} it; write one", mark, side));
  }
}

void findNoBreakSpaces(const Translation& translation, Findings& findings) {
  const LanguageStyle& style = translation.glossary.styleOf(translation.language);
  const std::string text = proseOf(translation.entry.text);
  for (const std::string_view mark : style.noBreakBefore) {
    const auto isMissing = [&](std::size_t at) {
      return characterBefore(text, at) != kNoBreakSpace && !standsClose(mark, text, at, style);
    };
    findWithoutSpace(mark, text, "before", translation, isMissing, findings);
  }
  for (const std::string_view mark : style.noBreakAfter) {
    const auto isMissing = [&](std::size_t at) {
      const std::string_view after = characterAt(text, at + mark.size());
      return !after.empty() && after != kNoBreakSpace;
    };
    findWithoutSpace(mark, text, "after", translation, isMissing, findings);
  }
}

constexpr RuleFor<Translation> kRules[] = {
    {{"quotation-marks", Severity::warning, "straight quotation marks, or those of another language"},
     inTranslated<findQuotationMarks>},
    {{"apostrophe", Severity::warning, "a straight apostrophe"}, inTranslated<findApostrophes>},
    {{"ellipsis", Severity::warning, "three dots for an ellipsis"}, inTranslated<findDots>},
    {{"doubled-blank", Severity::warning, "two blanks in a row"}, findDoubledBlanks},
    {{"no-break-space", Severity::warning,
      "a mark without the no-break space that the language sets beside it"},
     inTranslated<findNoBreakSpaces>},
};

}  // namespace

std::span<const RuleFor<Translation>> typographyRules() {
  return kRules;
}

}  // namespace zk::tools
