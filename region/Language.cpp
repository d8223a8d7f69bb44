#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/region/Language.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

namespace {

/// The non-empty parts of the first identifier, which hyphens separate; none if there is no identifier.
std::vector<std::string_view> componentsOfFirst(const SharedArray<std::string>& identifiers) {
  std::vector<std::string_view> components;
  if (identifiers.empty()) return components;
  for (std::string_view rest = identifiers[0]; !rest.empty();) {
    const std::string_view component = rest.substr(0, findCharacter(rest, '-'));
    rest.remove_prefix(std::min(component.size() + 1, rest.size()));
    if (!component.empty()) components.push_back(component);
  }
  return components;
}

}  // namespace

Language::Language()
    : countries(loadCountries()),
      locale(Locale::autoupdatingCurrent()),
      preferredLanguages(Locale::preferredLanguages()) {
}

std::optional<std::string> Language::country() const {
  std::optional<std::string> code = Current::reachability->networkCountryCode();
  return code ? code : preferredLanguageCountry();
}

std::optional<std::string> Language::preferredLanguageCountry() const {
  const std::vector<std::string_view> components = componentsOfFirst(preferredLanguages);
  if (components.empty()) return std::nullopt;
  return std::string(components.back());
}

std::optional<std::string> Language::preferredLanguageCode() const {
  const std::vector<std::string_view> components = componentsOfFirst(preferredLanguages);
  if (components.size() == 3) return std::string(components[0]).append("-").append(components[1]);
  if (components.size() == 2) return std::string(components[0]);
  return std::nullopt;
}

}  // namespace zk
