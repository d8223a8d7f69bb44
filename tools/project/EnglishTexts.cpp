#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

std::vector<std::string_view> EnglishText::placeholders() const {
  std::vector<std::string_view> names = placeholderNames(text);
  for (const std::string_view name : placeholderNames(entry->text)) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

std::string_view EnglishText::countPlaceholder() const {
  if (!form) return "";
  const std::vector<std::string_view> names = placeholderNames(entry->text);
  const auto number = std::find_if(names.begin(), names.end(),
                                   [&](std::string_view name) { return settings->isNumber(name); });
  if (number != names.end()) return *number;
  return names.size() == 1 && !settings->examples.contains(names.front()) ? names.front() : "";
}

std::string_view EnglishText::optionalPlaceholder() const {
  if (!form || (form->suffix != "_zero" && form->suffix != "_one")) return "";
  const std::vector<std::string_view> names = placeholderNames(entry->text);
  return names.size() == 1 ? names.front() : countPlaceholder();
}

EnglishTexts::EnglishTexts(const Catalogue& catalogue) {
  const auto add = [&](std::string key, const Entry& entry, const PluralForm* form, const std::string& text) {
    if (places_.emplace(key, texts_.size()).second)
      texts_.push_back({std::move(key), &entry, form, text, &catalogue.settings()});
  };
  for (const Entry& entry : catalogue.entries()) {
    if (!entry.plural) add(entry.key, entry, nullptr, entry.text);
    for (std::size_t i = 0; entry.plural && i < entry.forms.size(); ++i)
      add(entry.key + std::string(kPluralForms[i].suffix), entry, &kPluralForms[i],
          entry.forms[i].value_or(entry.text));
  }
}

const EnglishText* EnglishTexts::find(std::string_view key) const {
  const auto place = places_.find(std::string(key));
  return place == places_.end() ? nullptr : &texts_[place->second];
}

}  // namespace zk::tools
