#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/Coverage.h>
#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/Table.h>

#include <algorithm>
#include <map>
#include <string_view>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

constexpr std::size_t kBarWidth = 20;

Coverage coverageOf(const std::string& language, const Table& table, const Catalogue& catalogue) {
  Coverage coverage{language, 0, 0, 0, table.faults.empty()};
  std::map<std::string_view, std::string_view> texts;
  if (coverage.isWellFormed) {
    for (const TableEntry& entry : table.entries) texts[entry.key] = entry.text;
  }
  for (const auto& [key, entry, suffix] : catalogue.lookedUpKeys()) {
    const auto text = texts.find(key);
    const bool isThere = text != texts.end() && !text->second.empty();
    ++(isThere ? coverage.there : coverage.missing);
    if (!isThere && !suffix.empty()) ++coverage.missingPluralForms;
  }
  return coverage;
}

std::string lineOf(const Coverage& coverage, std::size_t nameWidth) {
  const std::size_t filled = coverage.percent() * kBarWidth / 100;
  return fmt::format(
      "{:<{}}  {:>5} there  {:>5} missing, {:>4} of them plural forms  {:>3}%  [{:#<{}}{:-<{}}]{}\n",
      coverage.language, nameWidth, coverage.there, coverage.missing, coverage.missingPluralForms,
      coverage.percent(), "", filled, "", kBarWidth - filled,
      coverage.isWellFormed ? "" : "  no well-formed table: see zkstrings check");
}

}  // namespace

std::size_t Coverage::percent() const {
  const std::size_t all = there + missing;
  return all == 0 ? 100 : there * 100 / all;
}

std::vector<Coverage> coverageOf(const std::string& root) {
  const Catalogue catalogue = Catalogue::read(root);
  std::vector<Coverage> languages;
  for (const std::string& language : languagesIn(root)) {
    languages.push_back(coverageOf(language, Table::read(root, language), catalogue));
  }
  return languages;
}

std::string formatted(const std::vector<Coverage>& languages) {
  std::size_t nameWidth = 0;
  for (const Coverage& coverage : languages) nameWidth = std::max(nameWidth, coverage.language.size());
  std::string lines;
  for (const Coverage& coverage : languages) lines += lineOf(coverage, nameWidth);
  return lines;
}

std::string toJson(const std::vector<Coverage>& languages) {
  std::vector<std::string> objects;
  for (const Coverage& coverage : languages) {
    const nlohmann::ordered_json object = {
        {"language", coverage.language}, {"there", coverage.there},
        {"missing", coverage.missing},   {"missingPluralForms", coverage.missingPluralForms},
        {"percent", coverage.percent()}, {"wellFormed", coverage.isWellFormed}};
    objects.push_back(object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  }
  return objects.empty() ? "[]" : fmt::format("[\n  {}\n]", fmt::join(objects, ",\n  "));
}

}  // namespace zk::tools
