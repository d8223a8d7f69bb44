#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/JoinedText.h>
#include <ZKStrings/engine/LanguageChoice.h>
#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/engine/PluralSuffix.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/Language.h>

namespace zk {

std::string localizedString(std::string_view key, std::string_view defaultValue,
                            std::optional<std::int64_t> count, const Substitutions& substitutions) {
  const JoinedText suffixedKey{key, pluralSuffix(count)};
  const Resolver::View<Language> language = Resolver::view<Language>();
  const Bundle& table = chosenLanguageBundle(bundle(), language->preferredLanguages);
  return applySubstitutions(table.localizedStringForKey(suffixedKey, defaultValue), substitutions);
}

}  // namespace zk
