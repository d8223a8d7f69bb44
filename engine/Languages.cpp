#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/Languages.h>
#include <ZKStrings/engine/LookupRules.h>
#include <ZKStrings/region/CurrentLanguage.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace zk {

namespace {

constexpr std::string_view kType = "lproj";

/// The language whose directory is `name`.lproj.
TextLanguage languageOf(std::string_view name) {
  const std::string_view code = name == "Base" ? "en" : name;
  return {std::string(code), isRightToLeft(code) ? TextDirection::rtl : TextDirection::ltr};
}

/// Whether a lookup can choose the directory `name`.lproj: some identifier has that code, and the directory opens.
bool canBeChosen(const Bundle& resources, std::string_view name) {
  if (name != "Base" && languageDirectoryName(name) != name) return false;
  try {
    return Bundle::initWithPath(*resources.pathForResource(name, kType)) != nullptr;
  } catch (const std::system_error&) {
    return true;
  }
}

}  // namespace

std::vector<TextLanguage> availableLanguages() {
  return availableLanguages(internal::moduleBundle());
}

std::vector<TextLanguage> availableLanguages(const Bundle* resources) {
  std::vector<TextLanguage> languages;
  if (!resources) return languages;
  for (const std::string_view name : resources->directoriesOfType(kType)) {
    if (canBeChosen(*resources, name)) languages.push_back(languageOf(name));
  }
  std::sort(languages.begin(), languages.end(),
            [](const TextLanguage& a, const TextLanguage& b) { return a.code < b.code; });
  return languages;
}

TextLanguage chosenLanguage() {
  return chosenLanguage(internal::moduleBundle());
}

TextLanguage chosenLanguage(const Bundle* resources) {
  const Language language = Current::language;
  std::string_view name = "Base";
  try {
    if (resources) {
      name = chosenLanguageBundle(*resources, language.preferredLanguages).path();
      name.remove_prefix(name.rfind('/') + 1);
      name.remove_suffix(kType.size() + 1);
    }
  } catch (const std::system_error&) {
  }
  return languageOf(name);
}

}  // namespace zk
