#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/EntryText.h>
#include <ZKStrings/engine/LookupRules.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/ServiceView.h>
#include <ZKStrings/region/Language.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace zk {

namespace {

/// The key to look up: `key` with the suffix for `count`, if there is one. On the stack if it fits there, or else on the
/// heap.
class LookupKey {
 public:
  LookupKey(std::string_view key, std::optional<std::int64_t> count) : key_(key) {
    if (!count) return;
    const std::string_view suffix = pluralSuffix(*count);
    const std::size_t size = key.size() + suffix.size();
    if (size > sizeof(short_)) long_.resize(size);
    char* const begin = long_.empty() ? short_ : long_.data();
    std::copy(suffix.begin(), suffix.end(), std::copy(key.begin(), key.end(), begin));
    key_ = {begin, size};
  }
  LookupKey(const LookupKey&) = delete;
  LookupKey& operator=(const LookupKey&) = delete;

  operator std::string_view() const { return key_; }

 private:
  char short_[120];
  std::string long_{};
  std::string_view key_;
};

/// The bundle to look up a text in. It has no resources if `resources` is null or temporarily cannot be read.
const Bundle& chosenBundle(const Bundle* resources, const SharedArray<std::string>& preferredLanguages) {
  try {
    if (resources) return chosenLanguageBundle(*resources, preferredLanguages);
  } catch (const std::system_error&) {
  }
  return Bundle::withoutResources("");
}

}  // namespace

void baseLprojIsMissingAmongTheResources() {
  __builtin_trap();
}

void languageDirectoryHasVanished() {
  __builtin_trap();
}

std::string localizedString(std::string_view key, std::string_view defaultValue,
                            std::optional<std::int64_t> count, const Substitutions& substitutions) {
  return localizedString(internal::moduleBundle(), key, defaultValue, count, substitutions);
}

std::string localizedString(const Bundle* resources, std::string_view key, std::string_view defaultValue,
                            std::optional<std::int64_t> count, const Substitutions& substitutions) {
  const LookupKey lookupKey(key, count);
  const ServiceView<Language> language;
  const Bundle& chosen = chosenBundle(resources, language->preferredLanguages);
  const std::string_view text = chosen.localizedStringForKey(lookupKey, defaultValue);
  const bool isFinished = substitutions.begin() == substitutions.end();
  return isFinished ? std::string(text) : internal::applySubstitutions(text, substitutions);
}

std::string entryText(std::string_view key, std::string_view english) {
  return localizedString(key, english, std::nullopt, {});
}

std::string entryText(std::string_view key, std::string_view english, std::int64_t count) {
  return localizedString(key, english, count, {});
}

std::string entryText(std::string_view key, std::string_view english,
                      std::initializer_list<Substitutions::Pair> pairs) {
  return localizedString(key, english, std::nullopt, pairs);
}

std::string entryText(std::string_view key, std::string_view english, std::int64_t count,
                      std::initializer_list<Substitutions::Pair> pairs) {
  return localizedString(key, english, count, pairs);
}

}  // namespace zk
