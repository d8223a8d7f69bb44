// Prints what the engine makes of the texts of a project, for the tests of the page's script: one JSON array a
// line with the index of the language on the page, that of the entry in the catalogue, the count (or null),
// the values for the placeholders, and the text. The values are the page's own ones, and such that contain
// other placeholders.
//
//     zk_engine_texts ROOT

#include <ZKStrings/tools/page/ExampleValues.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <cstddef>
#include <iostream>

#include <nlohmann/json.hpp>

namespace {

using namespace zk::tools;

constexpr std::int64_t kCounts[] = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 11, 21, 1'000'000'000'000};

/// The values with the placeholder of the next one in each, and what a replacement might take for a command.
Values nested(Values values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i].second = "$& %{" + values[(i + 1) % values.size()].first + "} <b>%{" + values[i].first + "}";
  }
  return values;
}

}  // namespace

int main(int, char** arguments) {
  const std::string root = arguments[1];
  const Catalogue catalogue = Catalogue::read(root);
  const AppTexts texts(root);
  std::vector<std::string> languages = languagesIn(root);
  std::stable_partition(languages.begin(), languages.end(),
                        [](const std::string& language) { return language == kBase; });
  for (std::size_t language = 0; language < languages.size(); ++language) {
    for (std::size_t index = 0; index < catalogue.entries().size(); ++index) {
      const Entry& entry = catalogue.entries()[index];
      const auto print = [&](const std::optional<std::int64_t> count, const Values& values) {
        const std::string text = texts.finishedText(languages[language], entry, count, values);
        std::cout << nlohmann::json{language, index, count ? nlohmann::json(*count) : nlohmann::json(),
                                    values, text}
                  << "\n";
      };
      const auto printBoth = [&](std::optional<std::int64_t> count) {
        const Values values = exampleValues(texts, catalogue, languages[language], entry, count);
        print(count, values);
        if (!values.empty()) print(count, nested(values));
      };
      if (!entry.plural) printBoth(std::nullopt);
      if (!entry.plural) continue;
      for (const std::int64_t count : kCounts) printBoth(count);
    }
  }
}
