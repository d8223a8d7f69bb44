#include <ZKStrings/engine/JoinedText.h>
#include <ZKStrings/engine/LanguageChoice.h>
#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/engine/PluralSuffix.h>
#include <ZKStrings/tools/page/AppTexts.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Languages.h>

namespace zk::tools {

AppTexts::AppTexts(const std::string& root) : resources_(Bundle::initWithPath(root + "/resources")) {
  const ResourcePath* const base = resources_ ? resources_->pathForResource(kBase, "lproj") : nullptr;
  if (base && Bundle::initWithPath(*base)) return;
  fail("resources/Base.lproj", "the folder of the English texts cannot be read; see that it exists");
}

std::string AppTexts::text(std::string_view language, const Entry& entry,
                           std::optional<std::int64_t> count) const {
  const std::string identifier(language == kBase ? "en" : language);
  const JoinedText key{entry.key, count ? pluralSuffix(*count) : ""};
  return std::string(chosenLanguageBundle(*resources_, {identifier}).localizedStringForKey(key, entry.text));
}

std::string AppTexts::finishedText(std::string_view language, const Entry& entry,
                                   std::optional<std::int64_t> count, const Values& values) const {
  return applySubstitutions(text(language, entry, count), values);
}

}  // namespace zk::tools
