#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/page/ExampleValues.h>
#include <ZKStrings/tools/page/LanguageName.h>
#include <ZKStrings/tools/page/PageData.h>
#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/TextSize.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

using Json = nlohmann::ordered_json;

/// The count for which a key with the plural form `suffix` is looked up.
std::optional<std::int64_t> exampleCount(std::string_view suffix) {
  for (const PluralForm& form : kPluralForms) {
    if (form.suffix == suffix) return form.example;
  }
  return std::nullopt;
}

char letterOf(TranslationState state) {
  switch (state) {
    case TranslationState::missing:
      return 'm';
    case TranslationState::untranslated:
      return 'u';
    case TranslationState::needsReview:
      return 'r';
    case TranslationState::translated:
      break;
  }
  return 't';
}

class PageDataMaker {
 public:
  explicit PageDataMaker(const std::string& root)
      : root_(root),
        name_(CatalogueName::read(root)),
        catalogue_(Catalogue::read(root)),
        english_(catalogue_, Table::read(root, kBase)),
        texts_(root),
        languages_(languagesIn(root)),
        diagnostics_(check(root, {.languages = {}, .off = {}, .notes = true}).diagnostics) {
    std::erase_if(languages_, [](const std::string& language) { return !whyNeverChosen(language).empty(); });
    std::stable_partition(languages_.begin(), languages_.end(),
                          [](const std::string& language) { return language == kBase; });
    for (std::size_t i = 0; i < english_.all().size(); ++i) places_.emplace(english_.all()[i].key, i);
  }

  [[nodiscard]] Json all() const {
    Json entries = Json::array();
    for (const Entry& entry : catalogue_.entries()) entries.push_back(dataOf(entry));
    Json languages = Json::array();
    for (const std::string& language : languages_) languages.push_back(dataOf(language));
    Json counts = Json::array();
    for (const PluralForm& form : kPluralForms) counts.push_back(form.example);
    return {
        {"counts", std::move(counts)}, {"entries", std::move(entries)}, {"languages", std::move(languages)}};
  }

 private:
  [[nodiscard]] Json dataOf(const Entry& entry) const {
    return {{"key", entry.key},
            {"text", entry.text},
            {"counted", entry.plural},
            {"call", accessorCall(entry, name_)},
            {"values", valuesOf(entry)}};
  }

  [[nodiscard]] Json valuesOf(const Entry& entry) const {
    std::vector<Values> byLanguage;
    for (const std::string& language : languages_) {
      byLanguage.push_back(exampleValues(texts_, catalogue_, language, entry, std::nullopt));
    }
    Json values = Json::array();
    for (std::size_t i = 0; i < byLanguage.front().size(); ++i) {
      const std::string& name = byLanguage.front()[i].first;
      const std::string& value = byLanguage.front()[i].second;
      const auto isSame = [&](const Values& others) { return others[i].second == value; };
      if (name == countPlaceholder(entry)) {
        values.push_back({name, nullptr});
      } else if (std::all_of(byLanguage.begin(), byLanguage.end(), isSame)) {
        values.push_back({name, value});
      } else {
        Json each = Json::array();
        for (const Values& others : byLanguage) each.push_back(others[i].second);
        values.push_back({name, std::move(each)});
      }
    }
    return values;
  }

  [[nodiscard]] Json dataOf(const std::string& language) const {
    const LanguageName name = nameOfLanguage(language);
    const Table table = Table::read(root_, language);
    Json data = {{"tag", name.tag},
                 {"english", name.english},
                 {"native", name.native},
                 {"isRightToLeft", name.isRightToLeft},
                 {"file", table.file},
                 {"isWellFormed", table.diagnostics.empty()},
                 {"texts", Json::array()},
                 {"finished", Json::array()},
                 {"characters", Json::array()},
                 {"states", statesOf(language, table)},
                 {"findings", findingsOf(table)}};
    for (const EnglishText& english : english_.all()) addText(language, english, data);
    return data;
  }

  void addText(const std::string& language, const EnglishText& english, Json& data) const {
    const Entry& entry = *english.entry;
    const std::optional<std::int64_t> count = exampleCount(english.suffix);
    const std::string text = texts_.text(language, entry, count);
    const std::string finished = texts_.finishedText(
        language, entry, count, exampleValues(texts_, catalogue_, language, entry, count));
    data["texts"].push_back(text);
    data["finished"].push_back(finished == text ? Json(0) : Json(finished));
    data["characters"].push_back(charactersIn(finished));
  }

  [[nodiscard]] std::string statesOf(const std::string& language, const Table& table) const {
    std::string states;
    for (const EnglishText& english : english_.all()) {
      const TableEntry* const entry = table.diagnostics.empty() ? table.find(english.key) : nullptr;
      states += letterOf(stateOf(language, entry, english));
    }
    return states;
  }

  [[nodiscard]] Json findingsOf(const Table& table) const {
    Json findings = Json::array();
    for (const Diagnostic& diagnostic : diagnostics_) {
      if (diagnostic.file != table.file || diagnostic.severity == Severity::gap) continue;
      const TableEntry* const entry = table.entryAt({diagnostic.line, diagnostic.column});
      const auto place = entry ? places_.find(entry->key) : places_.end();
      findings.push_back({place == places_.end() ? Json() : Json(place->second), nameOf(diagnostic.severity),
                          diagnostic.rule, diagnostic.message, diagnostic.line, diagnostic.column});
    }
    return findings;
  }

  const std::string root_;
  const CatalogueName name_;
  const Catalogue catalogue_;
  const EnglishTexts english_;
  const AppTexts texts_;
  std::vector<std::string> languages_;
  const Diagnostics diagnostics_;
  std::unordered_map<std::string, std::size_t> places_;
};

}  // namespace

std::string pageData(const std::string& root) {
  return PageDataMaker(root).all().dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace zk::tools
