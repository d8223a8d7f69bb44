#include <ZKStrings/tools/page/ExampleValues.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <iterator>

namespace zk::tools {

namespace {

struct Example {
  std::string_view placeholder;
  std::string_view text;
};

constexpr Example kExamples[] = {
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
    {"points", "250"},
    {"pointsMultiplier", "2"},
    {"pointsToGo", "40"},
    {"prize", "$1,000"},
    {"prizeAmount", "$1,000"},
    {"provider", "Facebook"},
    {"puzzleNumber", "2"},
    {"reached", "11"},
    {"remaining", "3"},
    {"round", "9"},
    {"roundNumber", "2"},
    {"searchTerm", "kim"},
    {"seconds", "0:15"},
    {"secondLetter", "B"},
    {"sender", "alex"},
    {"showTitle", "ZK Sports"},
    {"socialNetwork", "Instagram"},
    {"thirdLetter", "C"},
    {"time", "2:30"},
    {"timeLeft", "0:45"},
    {"timer", "2:30"},
    {"totalAnswers", "12"},
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

/// A placeholder that takes another text of the catalogue.
struct Nested {
  std::string_view placeholder;
  std::string_view key;
  std::optional<std::int64_t> count;
  std::string_view in = "";  ///< the key of the only entry for which it is so; empty for all
};

constexpr Nested kNested[] = {
    {"competition", "VIP_Prize_Rules", {}},
    {"learnMore", "Learn_more", {}},
    {"name", "Extra_Lives", 3, "Success_You_have_count_name"},
    {"players", "playersCount_players", 12},
    {"pp", "Privacy_Policy", {}},
    {"privacy", "Privacy_Policy", {}},
    {"product", "Extra_Life", {}},
    {"productName", "Extra_Life", {}},
    {"products", "Extra_Lives", 8},
    {"questions", "questionsCount_questions", 3},
    {"rules", "Rules", {}},
    {"terms", "Terms_of_Use", {}},
};

constexpr std::string_view kNumber = "12";

bool isCountName(std::string_view name) {
  return name.ends_with("Count");
}

const Example* exampleFor(std::string_view placeholder) {
  const Example* const example =
      std::find_if(std::begin(kExamples), std::end(kExamples),
                   [&](const Example& one) { return one.placeholder == placeholder; });
  return example == std::end(kExamples) ? nullptr : example;
}

const Nested* nestedFor(std::string_view placeholder, const Entry& entry) {
  const Nested* const nested =
      std::find_if(std::begin(kNested), std::end(kNested), [&](const Nested& candidate) {
        return candidate.placeholder == placeholder && (candidate.in.empty() || candidate.in == entry.key);
      });
  return nested == std::end(kNested) ? nullptr : nested;
}

bool takesNumber(std::string_view placeholder, const Entry& entry) {
  if (nestedFor(placeholder, entry)) return false;
  const Example* const example = exampleFor(placeholder);
  return !example || example->text.find_first_not_of("0123456789") == std::string_view::npos;
}

const Entry* find(const Catalogue& catalogue, const Nested& nested) {
  const auto isMeant = [&](const Entry& entry) {
    return entry.key == nested.key && entry.plural == nested.count.has_value();
  };
  const auto entry = std::find_if(catalogue.entries().begin(), catalogue.entries().end(), isMeant);
  return entry == catalogue.entries().end() ? nullptr : &*entry;
}

std::string plainValue(const Entry& entry, std::string_view placeholder, std::optional<std::int64_t> count) {
  if (count && placeholder == countPlaceholder(entry)) return std::to_string(*count);
  if (const Example* const example = exampleFor(placeholder)) return std::string(example->text);
  return std::string(isCountName(placeholder) ? kNumber : placeholder);
}

}  // namespace

std::string_view countPlaceholder(const Entry& entry) {
  if (!entry.plural) return "";
  const std::vector<std::string_view> names = placeholderNames(entry.text);
  auto found = std::find_if(names.begin(), names.end(), isCountName);
  if (found == names.end()) {
    found = std::find_if(names.begin(), names.end(),
                         [&](std::string_view name) { return takesNumber(name, entry); });
  }
  return found == names.end() ? "" : *found;
}

Values exampleValues(const AppTexts& texts, const Catalogue& catalogue, std::string_view language,
                     const Entry& entry, std::optional<std::int64_t> count) {
  Values values;
  for (const std::string_view name : placeholderNames(entry.text)) {
    const Nested* const nested = nestedFor(name, entry);
    const Entry* const inner = nested ? find(catalogue, *nested) : nullptr;
    if (!inner) {
      values.emplace_back(name, plainValue(entry, name, count));
      continue;
    }
    Values innerValues;  // plain ones, so that no text is nested in itself
    for (const std::string_view innerName : placeholderNames(inner->text)) {
      innerValues.emplace_back(innerName, plainValue(*inner, innerName, nested->count));
    }
    values.emplace_back(name, texts.finishedText(language, *inner, nested->count, innerValues));
  }
  return values;
}

}  // namespace zk::tools
