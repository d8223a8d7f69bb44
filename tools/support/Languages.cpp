#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Languages.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <fmt/format.h>
#include <unicode/locid.h>
#include <unicode/uloc.h>
#include <unicode/unistr.h>

namespace zk::tools {

namespace {

constexpr const char* kResources = "resources";
constexpr const char* kExtension = ".lproj";

bool isLanguageCode(std::string_view code) {
  if (code.size() != 2) return false;
  const char* const* known = uloc_getISOLanguages();
  while (*known && code != *known) ++known;
  return *known != nullptr;
}

/// The code of the language with the name `name`, in lower case; empty if there is none. Keeps what ICU finds slowly.
std::string codeOfName(std::string_view name) {
  static const auto codes = [] {
    std::map<std::string, std::string, std::less<>> found;
    for (const char* const* code = uloc_getISOLanguages(); *code; ++code) {
      if (!isLanguageCode(*code)) continue;
      for (const char* const in : {"en", *code}) found.emplace(lowerCased(languageName(*code, in)), *code);
    }
    return found;
  }();
  const auto found = codes.find(name);
  return found == codes.end() ? "" : found->second;
}

/// What to do about `name`, which ICU does not know as a language.
std::string adviceFor(std::string_view name, const std::vector<std::string>& languages) {
  std::vector<std::string> names = languages;
  for (const std::string& language : languages) names.push_back(lowerCased(languageName(language, "en")));
  return didYouMean(nearest(name, {names.begin(), names.end()}), "zkstrings coverage lists the languages");
}

/// The name without the folders before it and the extension: "de" for "resources/de.lproj/Localizable.strings".
std::string_view withoutPath(std::string_view word) {
  constexpr std::string_view kTable = "/Localizable.strings";
  while (word.ends_with('/')) word.remove_suffix(1);
  if (word.ends_with(kTable)) word.remove_suffix(kTable.size());
  word.remove_prefix(word.rfind('/') + 1);
  if (word.ends_with(kExtension)) word.remove_suffix(std::string_view(kExtension).size());
  return word;
}

}  // namespace

std::string languageName(const std::string& language, const std::string& in) {
  icu::UnicodeString name;
  std::string bytes;
  icu::Locale(language.c_str()).getDisplayLanguage(in.c_str(), name).toUTF8String(bytes);
  return bytes;
}

std::vector<std::string> languagesIn(const std::string& root) {
  std::vector<std::string> languages;
  std::error_code failure;
  for (const DirectoryEntry& entry : entriesOf(pathBelow(root, kResources), failure)) {
    const std::filesystem::path name = nativePath(entry.name);
    if (name.extension() == kExtension) languages.push_back(name.stem().string());
  }
  if (failure) fail(kResources, "the directory cannot be listed; check that it exists and is readable");
  std::sort(languages.begin(), languages.end());
  return languages;
}

std::string languageCodeOf(std::string_view word) {
  const std::string name = lowerCased(withoutPath(word));
  const std::string language = name.substr(0, name.find_first_of("-_.@"));
  if (isLanguageCode(language)) return language;
  UErrorCode status = U_ZERO_ERROR;
  std::array<char, ULOC_FULLNAME_CAPACITY> canonical{};
  uloc_toLanguageTag(language.c_str(), canonical.data(), static_cast<std::int32_t>(canonical.size()), false,
                     &status);
  if (U_SUCCESS(status) && isLanguageCode(canonical.data())) return canonical.data();
  return codeOfName(name);
}

std::string existingLanguage(const std::string& root, std::string_view word, const std::string& file) {
  const std::vector<std::string> languages = languagesIn(root);
  const auto exists = [&](std::string_view name) {
    return std::find(languages.begin(), languages.end(), name) != languages.end();
  };
  const std::string name(withoutPath(word));
  if (exists(name)) return name;
  const std::string code = languageCodeOf(word);
  if (code == "en") return std::string(kBase);
  if (exists(code)) return code;

  const std::string advice = code.empty() ? adviceFor(lowerCased(name), languages)
                                          : fmt::format("zkstrings template {} creates one", code);
  const std::string message =
      fmt::format("{} \"{}\"; {}", code.empty() ? "unknown language" : "no table for", word, advice);
  if (!file.empty()) fail(file, message);
  throw std::invalid_argument(message);
}

std::string whyNeverChosen(std::string_view language) {
  if (language == kBase || (isLanguageCode(language) && language != "en")) return "";
  const std::string code = languageCodeOf(language);
  return fmt::format("the module never uses {}.lproj; {}", language,
                     code == "en"   ? "write the English texts in Base.lproj"
                     : code.empty() ? "only languages with an ISO 639-1 code can have a table"
                                    : fmt::format("use {}.lproj, named by the two-letter code", code));
}

}  // namespace zk::tools
