#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tools/page/ShownTexts.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

namespace zk::tools {

namespace {

/// What an app might fill in for a placeholder: a text, or the key of a text that is then shown in each language.
constexpr std::pair<std::string_view, std::string_view> kExamples[] = {
    {"account", "Instagram"},
    {"active", "12"},
    {"amount", "$25"},
    {"appName", "ZK Trivia"},
    {"badge", "Geography"},
    {"badgeName", "Geography"},
    {"category", "Geography"},
    {"charityName", "Water for All"},
    {"code", "kim"},
    {"coinsPurchased", "500"},
    {"competition", "VIP_Prize_Rules"},
    {"correctCount", "9"},
    {"cost", "5"},
    {"count", "3"},
    {"date", "05/14/2026"},
    {"days", "7"},
    {"downloadUrl", "https://zktrivia.example"},
    {"earnedPoints", "250"},
    {"email", "kim@zktrivia.example"},
    {"fifthLetter", "E"},
    {"firstLetter", "A"},
    {"fourthLetter", "D"},
    {"game", "ZK Sports"},
    {"gameInfo", "ZK Sports, 8:30 PM"},
    {"gameName", "ZK Trivia"},
    {"learnMore", "Learn_more"},
    {"letter", "A"},
    {"letters", "A, B, C"},
    {"level", "4"},
    {"levelNumber", "4"},
    {"limit", "50"},
    {"maxPoints", "100"},
    {"minBalance", "$10"},
    {"minPoints", "50"},
    {"name", "kim"},
    {"name1", "kim"},
    {"name2", "alex"},
    {"number", "8"},
    {"percent", "87"},
    {"phoneNumber", "+1 555 0100"},
    {"player1", "kim"},
    {"player2", "alex"},
    {"player3", "robin"},
    {"players", "playersCount_players_many"},
    {"playersCount", "12"},
    {"points", "250"},
    {"pointsMultiplier", "2"},
    {"pointsToGo", "40"},
    {"pp", "Privacy_Policy"},
    {"privacy", "Privacy_Policy"},
    {"prize", "$1,000"},
    {"prizeAmount", "$1,000"},
    {"product", "Extra_Life"},
    {"productName", "Extra_Life"},
    {"products", "Extra_Lives"},
    {"provider", "Facebook"},
    {"puzzleCount", "12"},
    {"puzzleNumber", "2"},
    {"questionCount", "12"},
    {"questionNumber", "7"},
    {"questions", "questionsCount_questions_few"},
    {"reached", "11"},
    {"remaining", "3"},
    {"round", "9"},
    {"roundCount", "12"},
    {"roundNumber", "2"},
    {"rules", "Rules"},
    {"searchTerm", "kim"},
    {"secondLetter", "B"},
    {"seconds", "0:15"},
    {"sender", "alex"},
    {"showTitle", "ZK Sports"},
    {"socialNetwork", "Instagram"},
    {"terms", "Terms_of_Use"},
    {"thirdLetter", "C"},
    {"time", "2:30"},
    {"timeLeft", "0:45"},
    {"timer", "2:30"},
    {"totalAnswers", "12"},
    {"totalCount", "12"},
    {"twitterHandle", "@zktrivia"},
    {"unlocks", "3"},
    {"url", "https://zktrivia.example"},
    {"user", "kim"},
    {"username", "kim"},
    {"username2", "alex"},
    {"via", "Facebook"},
    {"votes", "120"},
    {"words", "5"},
    {"zkNameVariant", "ZK Trivia"},
};

std::optional<std::string_view> exampleFor(std::string_view placeholder) {
  for (const auto& [name, example] : kExamples) {
    if (name == placeholder) return example;
  }
  return std::nullopt;
}

bool takesNumber(std::string_view placeholder) {
  return exampleFor(placeholder).value_or("").find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<std::int64_t> exampleCount(const EnglishText& english) {
  for (const PluralForm& form : kPluralForms) {
    if (form.suffix == english.suffix) return form.example;
  }
  return std::nullopt;
}

}  // namespace

std::string_view countPlaceholder(const Entry& entry) {
  if (!entry.plural) return "";
  const std::vector<std::string_view> names = placeholderNames(entry.text);
  auto found =
      std::find_if(names.begin(), names.end(), [](std::string_view name) { return name.ends_with("Count"); });
  if (found == names.end()) found = std::find_if(names.begin(), names.end(), takesNumber);
  return found == names.end() ? "" : *found;
}

ShownTexts::ShownTexts(const std::string& root, const EnglishTexts& english)
    : resources_(Bundle::initWithPath(root + "/resources")), english_(english) {
  const ResourcePath* const base = resources_ ? resources_->pathForResource(kBase, "lproj") : nullptr;
  if (!base || !Bundle::initWithPath(*base))
    fail("resources/Base.lproj", "the folder of the English texts cannot be read; see that it exists");
}

void ShownTexts::choose(std::string_view language) const {
  Language chosen;
  chosen.preferredLanguages = {std::string(language == kBase ? "en" : language)};
  Current::language = chosen;
}

std::string ShownTexts::text(const EnglishText& english) const {
  return filledIn(english, valuesFor(english, false));
}

std::string ShownTexts::markedText(const EnglishText& english) const {
  Values values = valuesFor(english, false);
  for (auto& [name, value] : values) value = "\uFDD0" + name + "\uFDD1" + value + "\uFDD2";
  return filledIn(english, values);
}

std::string ShownTexts::filledIn(const EnglishText& english, const Values& values) const {
  const Entry& entry = *english.entry;
  return localizedString(resources_, entry.key, entry.text, exampleCount(english), values);
}

/// Examples within an example are not looked up, so that no text contains itself.
ShownTexts::Values ShownTexts::valuesFor(const EnglishText& english, bool isNested) const {
  const std::string_view counted = countPlaceholder(*english.entry);
  Values values;
  for (const std::string_view name : placeholderNames(english.entry->text)) {
    std::string value(exampleFor(name).value_or(name));
    const EnglishText* const inner = isNested ? nullptr : english_.find(value);
    if (name == counted) {
      value = std::to_string(exampleCount(english).value_or(0));
    } else if (inner) {
      value = filledIn(*inner, valuesFor(*inner, true));
    }
    values.emplace_back(name, std::move(value));
  }
  return values;
}

}  // namespace zk::tools
