#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/translation/Coverage.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

constexpr std::size_t kBarWidth = 15;
constexpr std::string_view kHeading = "language";

Coverage coverageOf(const std::string& language, const Table& table, const EnglishTexts& english) {
  Coverage coverage{language};
  coverage.isWellFormed = table.diagnostics.empty();
  for (const EnglishText& text : english.all()) {
    const TableEntry* const entry = coverage.isWellFormed ? table.find(text.key) : nullptr;
    ++coverage.counts[static_cast<std::size_t>(stateOf(language, entry, text))];
  }
  return coverage;
}

std::string lineOf(const Coverage& coverage, std::size_t nameWidth) {
  const auto [missing, untranslated, needsReview, translated] = coverage.counts;
  const std::size_t filled = coverage.percent() * kBarWidth / 100;
  const std::string bar = fmt::format("{:#<{}}{:-<{}}", "", filled, "", kBarWidth - filled);
  return fmt::format("{:<{}}{:>12}{:>10}{:>14}{:>9}{:>6}%  {}\n", coverage.language, nameWidth, translated,
                     needsReview, untranslated, missing, coverage.percent(),
                     coverage.isWellFormed ? bar : "see check");
}

}  // namespace

std::size_t Coverage::percent() const {
  const std::size_t all = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
  return all == 0 ? 100 : counts.back() * 100 / all;
}

std::vector<Coverage> coverageOf(const std::string& root) {
  const Catalogue catalogue = Catalogue::read(root);
  const EnglishTexts english(catalogue);
  std::vector<Coverage> languages;
  for (const std::string& language : languagesIn(root)) {
    languages.push_back(coverageOf(language, Table::read(root, language), english));
  }
  return languages;
}

std::string formatted(const std::vector<Coverage>& languages) {
  std::size_t nameWidth = kHeading.size();
  for (const Coverage& coverage : languages) nameWidth = std::max(nameWidth, coverage.language.size());
  std::string lines = fmt::format("{:<{}}{:>12}{:>10}{:>14}{:>9}\n", kHeading, nameWidth, "translated",
                                  "to review", "untranslated", "missing");
  for (const Coverage& coverage : languages) lines += lineOf(coverage, nameWidth);
  return lines;
}

std::string toJson(const std::vector<Coverage>& languages) {
  std::vector<std::string> objects;
  for (const Coverage& coverage : languages) {
    const auto [missing, untranslated, needsReview, translated] = coverage.counts;
    const nlohmann::ordered_json object = {
        {"language", coverage.language},      {"translated", translated}, {"needsReview", needsReview},
        {"untranslated", untranslated},       {"missing", missing},       {"percent", coverage.percent()},
        {"wellFormed", coverage.isWellFormed}};
    objects.push_back(object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  }
  return objects.empty() ? "[]" : fmt::format("[\n  {}\n]", fmt::join(objects, ",\n  "));
}

}  // namespace zk::tools
