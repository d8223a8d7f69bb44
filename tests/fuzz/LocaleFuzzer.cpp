#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The variables LC_ALL, LC_MESSAGES, LANG and LANGUAGE, against the rules in the words of `Locale`'s comment.

namespace zk::fuzzing {

namespace {

std::string replaced(std::string text, char before, char now) {
  std::replace(text.begin(), text.end(), before, now);
  return text;
}

std::string withoutModifiers(const std::string& name) {
  return name.substr(0, name.find_first_of(".@"));
}

/// "sr-Latn-RS" of "sr_RS.UTF-8@latin"; empty for a name without language.
std::string plainly(const std::string& name) {
  if (withoutModifiers(name) == "C" || withoutModifiers(name) == "POSIX") return "en";
  std::string plain = replaced(withoutModifiers(name), '_', '-');
  while (plain.ends_with('-')) plain.pop_back();
  const std::string language = plain.substr(0, plain.find('-'));
  if (language.empty()) return "";
  std::string script;
  for (const auto& [modifier, code] : {std::pair{"@latin", "-Latn"}, std::pair{"@cyrillic", "-Cyrl"},
                                       std::pair{"@devanagari", "-Deva"}, std::pair{"@iqtelif", "-Latn"}}) {
    if (name.find('@') != name.npos && name.substr(name.find('@')) == modifier) script = code;
  }
  return language + script + plain.substr(language.size());
}

bool isWithoutLanguage(const std::string& name) {
  const std::string plain = withoutModifiers(name);
  return plain == "C" || plain == "POSIX" || plainly(name).empty();
}

std::vector<std::string> languagesPlainly(const std::string& locale, const std::string& list) {
  if (isWithoutLanguage(locale)) return {"en"};
  std::vector<std::string> languages;
  const auto add = [&](const std::string& language) {
    const bool isKnown = std::find(languages.begin(), languages.end(), language) != languages.end();
    if (!language.empty() && !isKnown) languages.push_back(language);
  };
  std::istringstream names(list);
  for (std::string name; std::getline(names, name, ':');) add(plainly(name));
  add(plainly(locale));
  return languages;
}

}  // namespace

void test(std::string_view input) {
  static constexpr const char* kNames[] = {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"};
  std::vector<std::string> values = partsOf(input, std::size(kNames));
  for (std::size_t i = 0; i < std::size(kNames); ++i) {
    values[i].resize(values[i].find('\0') == std::string::npos ? values[i].size() : values[i].find('\0'));
    setenv(kNames[i], values[i].c_str(), 1);
  }
  std::string locale;
  for (const std::size_t i : {2U, 1U, 0U}) {
    if (!values[i].empty()) locale = values[i];
  }
  SharedArray<std::string> languages;
  std::string identifier;
  {
    const TimeLimit limit(input.size());
    languages = Locale::preferredLanguages();
    identifier = Locale::autoupdatingCurrent().identifier();
  }
  require(std::vector(languages.begin(), languages.end()) == languagesPlainly(locale, values[3]),
          "languages");
  require(identifier == (isWithoutLanguage(locale) ? "en" : plainly(locale)), "the locale " + identifier);
}

}  // namespace zk::fuzzing
