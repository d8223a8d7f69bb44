#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/region/CountryList.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zk {

SharedArray<Country> countriesIn(const Bundle& bundle) {
  const std::optional<std::string> path = bundle.URLForResource("countries", "json");
  if (!path) return {};
  std::optional<std::string> bytes = contentsOfFile(*path);
  if (!bytes) return {};
  const std::optional<Value> content = parseJson(*std::move(bytes));
  const Value::List* const elements = content ? content->as<Value::List>() : nullptr;
  const auto isObject = [](const Value& element) { return element.as<Dictionary>() != nullptr; };
  if (!elements || !std::all_of(elements->begin(), elements->end(), isObject)) return {};

  std::vector<Country> countries;
  countries.reserve(elements->size());
  for (const Value& element : *elements) {
    std::optional<Country> country = Country::fromDictionary(*element.as<Dictionary>());
    if (country) countries.push_back(*std::move(country));
  }
  return countries;
}

}  // namespace zk
