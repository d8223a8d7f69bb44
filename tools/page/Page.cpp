#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/page/Page.h>
#include <ZKStrings/tools/page/PageParts.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/TextFeatures.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <unicode/locid.h>

namespace zk::tools {

namespace {

using Json = nlohmann::ordered_json;

std::string capitalized(std::string_view text) {
  const std::string_view first = text.empty() ? text : firstCodePoint(text).bytes;
  return upperCased(first).append(text.substr(first.size()));
}

std::string familyOf(const Entry& entry) {
  const bool isFormatted = !placeholderNames(entry.text).empty();
  if (entry.plural) return isFormatted ? "counted formatted" : "counted";
  return isFormatted ? "formatted" : "plain";
}

Json formsData() {
  Json forms = Json::array();
  for (const auto& [suffix, counts, example] : kPluralForms)
    forms.push_back({{"name", suffix.substr(1)}, {"counts", counts}, {"example", example}});
  return forms;
}

/// Returns the example for `placeholder` in `english`; null if the settings have none.
const CatalogueSettings::Example* exampleFor(const EnglishText& english, std::string_view placeholder) {
  const auto& examples = english.settings->examples;
  auto example = examples.find(fmt::format("{}.{}", english.entry->key, placeholder));
  if (example == examples.end()) example = examples.find(placeholder);
  return example == examples.end() ? nullptr : &example->second;
}

/// The texts of a project as its app shows them: the engine looks them up and fills in example values.
class ShownTexts {
 public:
  /// Opens the resources of the project at `root`. `english`, the project's texts, must outlive this object.
  /// Throws `CommandFailed` if Base.lproj is missing or cannot be opened: the engine cannot run without it.
  ShownTexts(const std::string& root, const EnglishTexts& english)
      : resources_(Bundle::initWithPath(root + "/resources")), english_(english) {
    const ResourcePath* const base = resources_ ? resources_->pathForResource(kBase, "lproj") : nullptr;
    if (!base || !Bundle::initWithPath(*base))
      fail("resources/Base.lproj", "the folder of the English texts cannot be read; check that it exists");
  }

  /// The text of the key of `english` in the language of the process. With `isMarked`, each value is U+FDD0, the
  /// placeholder's name, U+FDD1, the value, U+FDD2. Unicode reserves these noncharacters for internal use.
  [[nodiscard]] std::string text(const EnglishText& english, bool isMarked) const {
    const auto count = english.form ? std::optional(english.form->example) : std::nullopt;
    Values values = valuesFor(english, count, false);
    for (auto& [name, value] : values)
      if (isMarked) value = fmt::format("\uFDD0{}\uFDD1{}\uFDD2", name, value);
    return filledIn(english, count, values);
  }

 private:
  using Values = std::vector<std::pair<std::string, std::string>>;

  [[nodiscard]] std::string filledIn(const EnglishText& english, std::optional<std::int64_t> count,
                                     const Values& values) const {
    return localizedString(resources_, english.entry->key, english.entry->text, count, values);
  }

  /// A nested example does not refer to another text, so no text can contain itself.
  [[nodiscard]] Values valuesFor(const EnglishText& english, std::optional<std::int64_t> count,
                                 bool isNested) const {
    Values values;
    for (const std::string_view name : placeholderNames(english.entry->text)) {
      const CatalogueSettings::Example* const example = exampleFor(english, name);
      std::string value(name);
      if (count && name == english.countPlaceholder()) {
        value = std::to_string(*count);
      } else if (example && !isNested) {
        value = textOf(*example);
      } else if (example && !example->text.empty()) {
        value = example->text;
      }
      values.emplace_back(name, std::move(value));
    }
    return values;
  }

  [[nodiscard]] std::string textOf(const CatalogueSettings::Example& example) const {
    const EnglishText* const english = english_.find(example.key + (example.count ? "_many" : ""));
    if (!english) return example.key.empty() ? example.text : example.key;
    return filledIn(*english, example.count, valuesFor(*english, example.count, true));
  }

  const Bundle* resources_;
  const EnglishTexts& english_;
};

/// Makes the data that the script of the page reads:
///
///     {"app": "My App",
///      "forms": [{"name": "few", "counts": "3 to 5", "example": 4}, …],
///      "entries": [{"key", "context", "counted", "family", "call"}, …],
///      "languages": [{"tag", "english", "native", "isRightToLeft", "isWellFormed", "texts", "characters",
///                     "states", "previous": {"3": "Kick him?"},
///                     "findings": {"table": [{"severity", "rule", "message", "place"}, …], "3": …}}, …]}
///
/// English is the first language. "texts", "characters" and "states" have an element for each key that the
/// engine looks up, in catalogue order: the finished text, whose values are marked as `ShownTexts` marks them; its
/// length in characters; one letter for missing (m), untranslated (u), needs review (n) or translated (t).
/// "previous" has the English text that a translation was made from, if that has changed, by the index of the key.
/// "findings" are by the index of their key, or for the table as a whole.
class DataMaker {
 public:
  DataMaker(const std::string& root, const std::vector<std::string>& sources)
      : root_(root),
        catalogue_(Catalogue::read(root)),
        uses_(sources, catalogue_),
        english_(catalogue_),
        shown_(root, english_),
        diagnostics_(check(root, {.languages = {}, .off = {}, .notes = true}).diagnostics) {}

  [[nodiscard]] Json all() const {
    Json entries = Json::array();
    for (const Entry& entry : catalogue_.entries()) entries.push_back(dataOf(entry));
    Json languages = Json::array({dataOf(kBase)});
    for (const std::string& language : languagesIn(root_)) {
      if (language != kBase && whyNeverChosen(language).empty()) languages.push_back(dataOf(language));
    }
    const CatalogueSettings& settings = catalogue_.settings();
    return {{"app", settings.appName.empty() ? settings.name.name : settings.appName},
            {"forms", formsData()},
            {"entries", std::move(entries)},
            {"languages", std::move(languages)}};
  }

 private:
  [[nodiscard]] std::string contextOf(const Entry& entry) const {
    const std::string context = entry.context();
    const std::string uses = uses_.noteOn(entry);
    return context + (context.empty() || uses.empty() ? "" : " ") + uses;
  }

  [[nodiscard]] Json dataOf(const Entry& entry) const {
    return {{"key", entry.key},
            {"context", contextOf(entry)},
            {"counted", entry.plural},
            {"family", familyOf(entry)},
            {"call", accessorCall(entry, catalogue_.settings().name)}};
  }

  [[nodiscard]] Json dataOf(std::string_view language) const {
    const std::string tag(language == kBase ? "en" : language);
    const Table table = Table::read(root_, language);
    Json texts = Json::array();
    Json characters = Json::array();
    std::string states;
    Json previous = Json::object();
    Language chosen;
    chosen.preferredLanguages = {tag};
    Current::language = chosen;
    for (const EnglishText& english : english_.all()) {
      texts.push_back(shown_.text(english, true));
      characters.push_back(charactersIn(shown_.text(english, false)));
      const TableEntry* const entry = table.diagnostics.empty() ? table.find(english.key) : nullptr;
      const std::optional<std::string> before = entry ? quotedIn(*entry, kState) : std::nullopt;
      if (before) previous[std::to_string(states.size())] = *before;
      states += nameOf(stateOf(language, entry, english)).front();
    }
    return {{"tag", tag},
            {"english", capitalized(languageName(tag, "en"))},
            {"native", capitalized(languageName(tag, tag))},
            {"isRightToLeft", icu::Locale(tag.c_str()).isRightToLeft() != 0},
            {"isWellFormed", table.diagnostics.empty()},
            {"texts", std::move(texts)},
            {"characters", std::move(characters)},
            {"states", std::move(states)},
            {"previous", std::move(previous)},
            {"findings", findingsOf(table)}};
  }

  /// Findings in a malformed table concern the table as a whole, since the app shows none of its texts.
  [[nodiscard]] Json findingsOf(const Table& table) const {
    Json findings = Json::object();
    for (const auto& [severity, file, line, column, rule, message] : diagnostics_) {
      if (file != table.file || severity == Severity::gap) continue;
      const TableEntry* const entry = table.diagnostics.empty() ? table.entryAt({line, column}) : nullptr;
      const EnglishText* const text = entry ? english_.find(entry->key) : nullptr;
      const std::string key = text ? std::to_string(text - english_.all().data()) : "table";
      findings[key].push_back({{"severity", nameOf(severity)},
                               {"rule", rule},
                               {"message", message},
                               {"place", fmt::format("{}:{}:{}", file, line, column)}});
    }
    return findings;
  }

  const std::string root_;
  const Catalogue catalogue_;
  const Uses uses_;
  const EnglishTexts english_;
  const ShownTexts shown_;
  const Diagnostics diagnostics_;
};

}  // namespace

std::string pageOf(const std::string& root, const std::vector<std::string>& sources) {
  const std::string data =
      DataMaker(root, sources).all().dump(-1, ' ', false, Json::error_handler_t::replace);
  // JSON has this sign only in strings. The escape keeps texts from ending the data or starting a comment in it.
  return std::string(kPageBeforeData).append(replaceAll(data, "<", "\\u003c")).append(kPageAfterData);
}

}  // namespace zk::tools
