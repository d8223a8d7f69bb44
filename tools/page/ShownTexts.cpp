#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tools/page/ShownTexts.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// Returns the example for `placeholder` in `english`; null if the settings have none.
const CatalogueSettings::Example* exampleFor(const EnglishText& english, std::string_view placeholder) {
  const auto& examples = english.settings->examples;
  auto example = examples.find(fmt::format("{}.{}", english.entry->key, placeholder));
  if (example == examples.end()) example = examples.find(placeholder);
  return example == examples.end() ? nullptr : &example->second;
}

}  // namespace

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

std::string ShownTexts::text(const EnglishText& english, bool isMarked) const {
  const auto count = english.form ? std::optional(english.form->example) : std::nullopt;
  Values values = valuesFor(english, count, false);
  for (auto& [name, value] : values)
    if (isMarked) value = fmt::format("\uFDD0{}\uFDD1{}\uFDD2", name, value);
  return filledIn(english, count, values);
}

std::string ShownTexts::filledIn(const EnglishText& english, std::optional<std::int64_t> count,
                                 const Values& values) const {
  const Entry& entry = *english.entry;
  return localizedString(resources_, entry.key, entry.text, count, values);
}

/// A nested example does not refer to another text, so no text can contain itself.
ShownTexts::Values ShownTexts::valuesFor(const EnglishText& english, std::optional<std::int64_t> count,
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

std::string ShownTexts::textOf(const CatalogueSettings::Example& example) const {
  const EnglishText* const english = english_.find(example.key + (example.count ? "_many" : ""));
  if (!english) return example.key.empty() ? example.text : example.key;
  return filledIn(*english, example.count, valuesFor(*english, example.count, true));
}

}  // namespace zk::tools
