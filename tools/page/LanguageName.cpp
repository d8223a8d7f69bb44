#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/page/LanguageName.h>
#include <ZKStrings/tools/support/Languages.h>

#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace zk::tools {

namespace {

/// What `language` is called in the language of `reader`, with a capital letter, as it stands alone.
std::string nameIn(const icu::Locale& reader, const icu::Locale& language) {
  icu::UnicodeString name;
  std::string bytes;
  language.getDisplayLanguage(reader, name).toUTF8String(bytes);
  if (bytes.empty()) return bytes;
  const std::string_view first = firstCodePoint(bytes).bytes;
  return upperCased(first) + bytes.substr(first.size());
}

}  // namespace

LanguageName nameOfLanguage(std::string_view language) {
  const std::string tag(language == kBase ? "en" : language);
  const icu::Locale locale(tag.c_str());
  return {tag, nameIn(icu::Locale::getEnglish(), locale), nameIn(locale, locale),
          locale.isRightToLeft() != 0};
}

}  // namespace zk::tools
