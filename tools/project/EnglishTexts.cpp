#include <ZKStrings/tools/project/EnglishTexts.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

namespace {

std::string englishOf(const std::string& key, const Entry& entry, std::size_t form, const Table& base) {
  if (!entry.plural) return entry.text;
  if (const std::string* const given = formOf(entry, form)) return *given;
  const TableEntry* const inBase = base.find(key);
  return inBase ? inBase->text : entry.text;
}

}  // namespace

std::vector<std::string_view> EnglishText::placeholders() const {
  std::vector<std::string_view> names = placeholderNames(text);
  for (const std::string_view name : placeholderNames(entry->text)) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

std::string_view EnglishText::countPlaceholder() const {
  if (suffix.empty()) return "";
  const std::vector<std::string_view> names = placeholderNames(entry->text);
  const auto number = std::find_if(names.begin(), names.end(),
                                   [&](std::string_view name) { return settings->isNumber(name); });
  if (number != names.end()) return *number;
  return names.size() == 1 && !settings->examples.contains(names.front()) ? names.front() : "";
}

std::string_view EnglishText::dispensable() const {
  if (suffix != "_zero" && suffix != "_one") return "";
  const std::vector<std::string_view> names = placeholderNames(entry->text);
  return names.size() == 1 ? names.front() : countPlaceholder();
}

EnglishTexts::EnglishTexts(const Catalogue& catalogue, const Table& base) {
  for (const Entry& entry : catalogue.entries()) {
    const std::vector<std::string> keys = entry.lookedUpKeys();
    for (std::size_t form = 0; form < keys.size(); ++form) {
      const std::string& key = keys[form];
      if (!places_.emplace(key, texts_.size()).second) continue;
      const std::string_view suffix = entry.plural ? kPluralForms[form].suffix : "";
      texts_.push_back({key, &entry, suffix, englishOf(key, entry, form, base), &catalogue.settings()});
    }
  }
}

const EnglishText* EnglishTexts::find(std::string_view key) const {
  const auto place = places_.find(std::string(key));
  return place == places_.end() ? nullptr : &texts_[place->second];
}

}  // namespace zk::tools
