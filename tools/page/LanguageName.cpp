#include <ZKStrings/tools/Languages.h>
#include <ZKStrings/tools/page/LanguageName.h>

#include <memory>

#include <unicode/locdspnm.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace zk::tools {

namespace {

std::string nameIn(const icu::Locale& reader, const std::string& tag) {
  UDisplayContext context[] = {UDISPCTX_CAPITALIZATION_FOR_UI_LIST_OR_MENU};
  const std::unique_ptr<icu::LocaleDisplayNames> names(
      icu::LocaleDisplayNames::createInstance(reader, context, 1));
  icu::UnicodeString name;
  std::string bytes;
  names->languageDisplayName(tag.c_str(), name).toUTF8String(bytes);
  return bytes;
}

}  // namespace

LanguageName nameOfLanguage(std::string_view language) {
  const std::string tag(language == kBase ? "en" : language);
  const icu::Locale locale(tag.c_str());
  return {tag, nameIn(icu::Locale::getEnglish(), tag), nameIn(locale, tag), locale.isRightToLeft() != 0};
}

}  // namespace zk::tools
