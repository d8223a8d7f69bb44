#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/JoinedText.h>
#include <ZKStrings/engine/LanguageChoice.h>
#include <ZKStrings/engine/ModuleBundle.h>
#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/engine/PluralSuffix.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/registry/ServiceView.h>
#include <ZKStrings/region/Language.h>

#include <system_error>

namespace zk {

namespace {

// Both inlined, as a counted lookup then takes a twentieth less.

/// The bundle to look a text up in: one without resources while that cannot be said for want of descriptors or memory.
[[gnu::always_inline]] inline const Bundle& chosenBundle(const Bundle* resources,
                                                         const SharedArray<std::string>& preferredLanguages) {
  try {
    if (resources) return chosenLanguageBundle(*resources, preferredLanguages);
  } catch (const std::system_error&) {
  }
  return Bundle::withoutResources("");
}

[[gnu::always_inline]] inline std::string finishedText(const Bundle* resources, std::string_view suffixedKey,
                                                       std::string_view defaultValue,
                                                       const Substitutions& substitutions) {
  const ServiceView<Language> language;
  const Bundle& chosen = chosenBundle(resources, language->preferredLanguages);
  return applySubstitutions(chosen.localizedStringForKey(suffixedKey, defaultValue), substitutions);
}

}  // namespace

std::string localizedString(std::string_view key, std::string_view defaultValue,
                            std::optional<std::int64_t> count, const Substitutions& substitutions) {
  return localizedString(moduleBundle(), key, defaultValue, count, substitutions);
}

std::string localizedString(const Bundle* resources, std::string_view key, std::string_view defaultValue,
                            std::optional<std::int64_t> count, const Substitutions& substitutions) {
  if (!count) return finishedText(resources, key, defaultValue, substitutions);
  return finishedText(resources, JoinedText{key, pluralSuffix(*count)}, defaultValue, substitutions);
}

}  // namespace zk
