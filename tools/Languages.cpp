#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/Characters.h>
#include <ZKStrings/tools/Fault.h>
#include <ZKStrings/tools/Languages.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include <fmt/format.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr const char* kResources = "resources";
constexpr const char* kExtension = ".lproj";

/// ISO 639-1.
constexpr std::string_view kLanguageCodes[] = {
    "aa", "ab", "ae", "af", "ak", "am", "an", "ar", "as", "av", "ay", "az", "ba", "be", "bg", "bh", "bi",
    "bm", "bn", "bo", "br", "bs", "ca", "ce", "ch", "co", "cr", "cs", "cu", "cv", "cy", "da", "de", "dv",
    "dz", "ee", "el", "en", "eo", "es", "et", "eu", "fa", "ff", "fi", "fj", "fo", "fr", "fy", "ga", "gd",
    "gl", "gn", "gu", "gv", "ha", "he", "hi", "ho", "hr", "ht", "hu", "hy", "hz", "ia", "id", "ie", "ig",
    "ii", "ik", "io", "is", "it", "iu", "ja", "jv", "ka", "kg", "ki", "kj", "kk", "kl", "km", "kn", "ko",
    "kr", "ks", "ku", "kv", "kw", "ky", "la", "lb", "lg", "li", "ln", "lo", "lt", "lu", "lv", "mg", "mh",
    "mi", "mk", "ml", "mn", "mr", "ms", "mt", "my", "na", "nb", "nd", "ne", "ng", "nl", "nn", "no", "nr",
    "nv", "ny", "oc", "oj", "om", "or", "os", "pa", "pi", "pl", "ps", "pt", "qu", "rm", "rn", "ro", "ru",
    "rw", "sa", "sc", "sd", "se", "sg", "si", "sk", "sl", "sm", "sn", "so", "sq", "sr", "ss", "st", "su",
    "sv", "sw", "ta", "te", "tg", "th", "ti", "tk", "tl", "tn", "to", "tr", "ts", "tt", "tw", "ty", "ug",
    "uk", "ur", "uz", "ve", "vi", "vo", "wa", "wo", "xh", "yi", "yo", "za", "zh", "zu"};

/// Languages whose nouns stay as they are behind a number.
constexpr std::string_view kUninflected[] = {"az", "ba", "bo", "dz", "fa", "hu", "id", "ja", "jv", "ka",
                                             "kk", "km", "ko", "ky", "lo", "mn", "ms", "my", "su", "th",
                                             "tk", "tr", "tt", "ug", "uz", "vi", "za", "zh"};

bool isLanguageCode(std::string_view code) {
  return std::binary_search(std::begin(kLanguageCodes), std::end(kLanguageCodes), code);
}

}  // namespace

std::vector<std::string> languagesIn(const std::string& root) {
  std::vector<std::string> languages;
  std::error_code failure;
  for (fs::directory_iterator entry(fs::path(root) / kResources, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    if (entry->path().extension() == kExtension) languages.push_back(entry->path().stem().string());
  }
  if (failure) {
    throw CommandFailed{{{Severity::error, kResources, 1, 1, "",
                          "the directory cannot be listed; see that it exists and may be read"}}};
  }
  std::sort(languages.begin(), languages.end());
  return languages;
}

std::string whyNeverChosen(std::string_view language) {
  if (language == kBase) return "";
  if (language == "en") {
    return "the module never chooses en.lproj, it takes English from Base.lproj; write the texts there";
  }
  if (isLanguageCode(language)) return "";
  const std::string code = lowerCased(firstTwoCharacters(language));
  return fmt::format(
      "the module never chooses \"{}.lproj\", whose name is no language code of two characters; {}", language,
      isLanguageCode(code) ? fmt::format("name it {}.lproj", code == "en" ? kBase : code)
                           : "name it after the language's ISO 639-1 code");
}

bool inflectsForNumber(std::string_view language) {
  return std::find(std::begin(kUninflected), std::end(kUninflected), language) == std::end(kUninflected);
}

}  // namespace zk::tools
