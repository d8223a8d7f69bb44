#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/region/CountryList.h>

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
  if (!elements) return {};

  std::vector<Country> countries;
  countries.reserve(elements->size());
  for (const Value& element : *elements) {
    const auto* const object = element.as<Dictionary>();
    if (!object) return {};
    if (const auto country = Country::fromDictionary(*object)) countries.push_back(*country);
  }
  return countries;
}

}  // namespace zk
