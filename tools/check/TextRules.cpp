#include <ZKStrings/tools/check/EndPunctuation.h>
#include <ZKStrings/tools/check/TextRules.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

/// The English table says what the catalogue says. Its plural forms have no other source.
void findOtherEnglish(const Translation& translation, Findings& findings) {
  const EnglishText& english = translation.english;
  if (translation.language != kBase || !english.suffix.empty()) return;
  if (translation.entry.text == english.text) return;
  findings.add(translation.entry, fmt::format("the catalogue has \"{}\" for \"{}\"; write the same in both",
                                              escaped(english.text), english.key));
}

/// Whether each "<b>" is closed before the next one opens.
bool areTagsBalanced(std::string_view text) {
  bool isOpen = false;
  for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
    const std::string_view tag = text.substr(at);
    const bool opens = tag.starts_with("<b>");
    if (!opens && !tag.starts_with("</b>")) continue;
    if (opens == isOpen) return false;
    isOpen = opens;
  }
  return !isOpen;
}

bool areStarsBalanced(std::string_view text) {
  return countOf(text, "*") % 2 == 0;
}

/// A kind of marks by which an app shows a part of a text otherwise.
struct MarkKind {
  std::string_view name;
  std::string_view opening;
  bool (*areBalanced)(std::string_view text);
};

constexpr MarkKind kMarks[] = {{"<b> tags", "<b>", areTagsBalanced}, {"* marks", "*", areStarsBalanced}};

void findMarks(const Translation& translation, Findings& findings) {
  for (const auto& [name, opening, areBalanced] : kMarks) {
    const std::size_t here = countOf(translation.entry.text, opening);
    const std::size_t english = countOf(translation.english.text, opening);
    if (!areBalanced(translation.entry.text)) {
      findings.add(translation.entry, fmt::format("the {} do not pair up; open and close each part", name));
    } else if (here < english) {
      findings.add(translation.entry,
                   fmt::format("there are fewer {} than in the English text; mark the same parts", name));
    } else if (here > 0 && english == 0) {
      findings.add(
          translation.entry,
          fmt::format("the English text has no {}, and they may show as they stand; remove them", name));
    }
  }
}

void findLineBreaks(const Translation& translation, Findings& findings) {
  const std::size_t here = countOf(translation.entry.text, "\n");
  const std::size_t english = countOf(translation.english.text, "\n");
  if (here == english) return;
  findings.add(translation.entry,
               fmt::format("the number of line breaks (\\n) is {}, in the English text {}; write as many",
                           here, english));
}

void findOuterSpace(const Translation& translation, Findings& findings) {
  const OuterSpace here = outerSpace(translation.entry.text);
  const OuterSpace english = outerSpace(translation.english.text);
  if (here == english) return;
  const bool isLeading = here.leading != english.leading;
  findings.add(translation.entry,
               fmt::format("the white space {} is \"{}\", in the English text \"{}\"; write the same",
                           isLeading ? "before the text" : "behind the text",
                           escaped(isLeading ? here.leading : here.trailing),
                           escaped(isLeading ? english.leading : english.trailing)));
}

void findEndPunctuation(const Translation& translation, Findings& findings) {
  const Ending here = endingOf(translation.entry.text, translation.language);
  const Ending english = endingOf(translation.english.text, "en");
  const bool isStop = english == Ending::stop || english == Ending::question;
  const bool mayBeBare = isStop && !translation.glossary.styleOf(translation.language).sentenceStops;
  if (here == english || (mayBeBare && here == Ending::none)) return;
  findings.add(translation.entry, fmt::format("the text ends in {}, the English text in {}; end it alike",
                                              nameOf(here), nameOf(english)));
}

/// Whether the words of a plural form may say its number.
bool maySpellNumbers(const EnglishText& english) {
  return english.suffix == "_zero" || english.suffix == "_one" || english.suffix == "_two";
}

void findDigits(const Translation& translation, Findings& findings) {
  const std::vector<std::string> here = numbersIn(withoutPlaceholders(translation.entry.text));
  const std::vector<std::string> english = numbersIn(withoutPlaceholders(translation.english.text));
  const bool areRight = maySpellNumbers(translation.english)
                            ? std::includes(english.begin(), english.end(), here.begin(), here.end())
                            : here == english;
  if (areRight) return;
  findings.add(translation.entry,
               fmt::format("the numbers in the text are \"{}\", in the English one \"{}\"; write the same",
                           fmt::join(here, " "), fmt::join(english, " ")));
}

constexpr RuleFor<Translation> kRules[] = {
    {{"base-text", Severity::warning, "a text of the English table that is not the catalogue's"},
     findOtherEnglish},
    {{"marks", Severity::warning, "<b> tags or * marks that are unbalanced, lost or added"}, findMarks},
    {{"line-breaks", Severity::warning, "more or fewer line breaks than the English text"}, findLineBreaks},
    {{"outer-space", Severity::warning, "other leading or trailing white space than the English text"},
     findOuterSpace},
    {{"end-punctuation", Severity::warning,
      "other punctuation at the end than the English text, in the forms of all scripts"},
     findEndPunctuation},
    {{"digits", Severity::warning,
      "other numbers than in the English text; _zero, _one and _two may spell them"},
     inTranslations<findDigits>},
};

}  // namespace

std::span<const RuleFor<Translation>> textRules() {
  return kRules;
}

}  // namespace zk::tools
