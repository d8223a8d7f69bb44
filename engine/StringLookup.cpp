#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/EntryText.h>
#include <ZKStrings/engine/LookupRules.h>
#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/ServiceView.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/region/Language.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace zk {

namespace {

/// A key with its plural suffix, on the stack if it fits there, or else on the heap.
class SuffixedKey {
 public:
  SuffixedKey(std::string_view key, std::string_view suffix) : size_(key.size() + suffix.size()) {
    if (size_ > sizeof(short_)) long_.resize(size_);
    char* const begin = long_.empty() ? short_ : long_.data();
    copyBytes(copyBytes(begin, key.data(), key.size()), suffix.data(), suffix.size());
  }

  operator std::string_view() const { return {long_.empty() ? short_ : long_.data(), size_}; }

 private:
  char short_[120];
  std::string long_{};
  std::size_t size_;
};

/// The bundle to look a text up in: one without resources while that temporarily cannot be found.
const Bundle& chosenBundle(const Bundle* resources, const SharedArray<std::string>& preferredLanguages) {
  try {
    if (resources) return chosenLanguageBundle(*resources, preferredLanguages);
  } catch (const std::system_error&) {
  }
  return Bundle::withoutResources("");
}

std::string finishedText(const Bundle* resources, std::string_view suffixedKey, std::string_view defaultValue,
                         const Substitutions& substitutions) {
  const ServiceView<Language> language;
  const Bundle& chosen = chosenBundle(resources, language->preferredLanguages);
  const std::string_view text = chosen.localizedStringForKey(suffixedKey, defaultValue);
  const bool isFinished = substitutions.begin() == substitutions.end();
  return isFinished ? std::string(text) : applySubstitutions(text, substitutions);
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
  if (!count) return finishedText(resources, key, defaultValue, substitutions);
  return finishedText(resources, SuffixedKey(key, pluralSuffix(*count)), defaultValue, substitutions);
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
