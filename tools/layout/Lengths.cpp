#include <ZKStrings/tools/layout/Lengths.h>
#include <ZKStrings/tools/page/ExampleValues.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

std::vector<std::string> translationsIn(const std::string& root) {
  std::vector<std::string> languages = languagesIn(root);
  std::erase_if(languages, [](const std::string& language) {
    return language == kBase || !whyNeverChosen(language).empty();
  });
  return languages;
}

/// The sizes of an entry's finished texts in `language`, one for each of its forms.
std::vector<TextSize> sizesOf(const AppTexts& texts, const Catalogue& catalogue, std::string_view language,
                              const Entry& entry) {
  const auto size = [&](std::optional<std::int64_t> count) {
    return sizeOf(
        texts.finishedText(language, entry, count, exampleValues(texts, catalogue, language, entry, count)));
  };
  if (!entry.plural) return {size(std::nullopt)};
  std::vector<TextSize> sizes;
  sizes.reserve(std::size(kExampleCounts));
  for (const std::int64_t count : kExampleCounts) sizes.push_back(size(count));
  return sizes;
}

}  // namespace

double Length::times() const {
  const auto width = [](const TextSize& size) {
    return static_cast<double>(std::max<std::size_t>(size.columns, 1));
  };
  return width(translation) / width(english);
}

std::vector<Length> widestTranslations(const std::string& root, const std::vector<std::string>& languages,
                                       std::size_t limit) {
  const Catalogue catalogue = Catalogue::read(root);
  const AppTexts texts(root);
  std::vector<Length> lengths;
  for (const std::string& language : languages.empty() ? translationsIn(root) : languages) {
    const Table table = Table::read(root, language);
    if (!table.faults.empty()) continue;  // the module shows none of its texts
    for (const Entry& entry : catalogue.entries()) {
      const std::vector<TextSize> english = sizesOf(texts, catalogue, kBase, entry);
      const std::vector<TextSize> translation = sizesOf(texts, catalogue, language, entry);
      for (std::size_t form = 0; form < english.size(); ++form) {
        const std::string key = entry.key + std::string(entry.plural ? kPluralSuffixes[form] : "");
        if (table.find(key)) lengths.push_back({language, key, english[form], translation[form]});
      }
    }
  }
  const auto order = [](const Length& length) {
    return std::tuple(length.times(), length.translation.columns);
  };
  std::stable_sort(lengths.begin(), lengths.end(),
                   [&](const Length& one, const Length& other) { return order(one) > order(other); });
  lengths.resize(std::min(limit, lengths.size()));
  return lengths;
}

std::string formatted(const std::vector<Length>& lengths) {
  std::string lines =
      fmt::format("{:>6}  {:>9}  {:>10}  {:<8}  {}\n", "times", "columns", "characters", "language", "key");
  for (const Length& length : lengths) {
    const auto change = [](std::size_t before, std::size_t after) {
      return fmt::format("{} > {}", before, after);
    };
    lines += fmt::format("{:>6.1f}  {:>9}  {:>10}  {:<8}  {}\n", length.times(),
                         change(length.english.columns, length.translation.columns),
                         change(length.english.characters, length.translation.characters), length.language,
                         length.key);
  }
  return lines;
}

}  // namespace zk::tools
