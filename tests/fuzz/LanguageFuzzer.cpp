#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/LanguageChoice.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/brkiter.h>
#include <unicode/unistr.h>

/// The identifiers of three preferred languages, of any bytes: the text that they lead to and the parts of the
/// first, against ICU's iterator over characters.

namespace zk::fuzzing {

namespace {

/// What a user takes for the characters of `text`.
std::vector<std::string> charactersOf(std::string_view text) {
  icu::UnicodeString units;
  std::vector<std::string> byUnit;  // the bytes that a code point is of, at its last unit
  for (; !text.empty(); text.remove_prefix(firstCodePoint(text).bytes.size())) {
    const CodePoint next = firstCodePoint(text);
    units.append(
        static_cast<UChar32>(next.value.value_or(U'\1')));  // a control character joins nothing either
    byUnit.resize(static_cast<std::size_t>(units.length()));
    byUnit.back() = next.bytes;
  }
  UErrorCode status = U_ZERO_ERROR;
  static const auto iterator =
      std::unique_ptr<icu::BreakIterator>(icu::BreakIterator::createCharacterInstance("", status));
  iterator->setText(units);
  std::vector<std::string> characters;
  for (std::int32_t at = 0, end = 0; (end = iterator->next()) != icu::BreakIterator::DONE; at = end) {
    characters.emplace_back();
    for (; at < end; ++at) characters.back() += byUnit[static_cast<std::size_t>(at)];
  }
  return characters;
}

/// What stands between the hyphens of `identifier`, unless it is empty.
std::vector<std::string> partsPlainly(const std::string& identifier) {
  std::vector<std::string> parts;
  bool isBehindHyphen = true;
  for (const std::string& character : charactersOf(identifier)) {
    const bool isHyphen = character == "-";
    if (!isHyphen && isBehindHyphen) parts.emplace_back();
    if (!isHyphen) parts.back() += character;
    isBehindHyphen = isHyphen;
  }
  return parts;
}

void tryParts(const Language& language) {
  const std::vector<std::string> parts = partsPlainly(language.preferredLanguages[0]);
  std::optional<std::string> code;
  if (parts.size() == 2) code = parts[0];
  if (parts.size() == 3) code = parts[0] + "-" + parts[1];
  const TimeLimit limit(language.preferredLanguages[0].size());
  require(language.preferredLanguageCode() == code, "the code of the language");
  require(language.preferredLanguageCountry() == (parts.empty() ? std::nullopt : std::optional(parts.back())),
          "the country of the language");
}

/// The text of "About" by the name of its language's directory.
std::map<std::string, std::string> textsOfAllLanguages() {
  std::map<std::string, std::string> texts;
  for (const auto& directory : std::filesystem::directory_iterator(bundle().path())) {
    if (directory.path().extension() != ".lproj") continue;
    const Bundle* const opened = Bundle::initWithPath(directory.path());
    texts[directory.path().stem()] = opened->localizedStringForKey("About", "");
  }
  return texts;
}

/// The first two characters, or "Base" for English.
std::string codePlainly(const std::string& identifier) {
  const std::vector<std::string> characters = charactersOf(identifier);
  std::string code;
  for (std::size_t i = 0; i < std::min<std::size_t>(characters.size(), 2); ++i) code += characters[i];
  return code == "en" ? "Base" : code;
}

std::string textPlainly(const std::vector<std::string>& identifiers) {
  static const std::map<std::string, std::string> texts = textsOfAllLanguages();
  for (const std::string& identifier : identifiers) {
    const std::string code = codePlainly(identifier);
    require(languageCode(identifier) == code, "the directory is not that of " + code);
    if (const auto text = texts.find(code); text != texts.end()) return text->second;
  }
  return texts.at("Base");
}

}  // namespace

void test(std::string_view input) {
  static Language language;
  const std::vector<std::string> identifiers = partsOf(input, 3);
  language.preferredLanguages = identifiers;
  tryParts(language);
  Current::language = language;
  std::string text;
  {
    const TimeLimit limit(input.size());
    text = localizedString("About", "About", std::nullopt, {});
  }
  require(text == textPlainly(identifiers), "the text is " + text);
}

}  // namespace zk::fuzzing
