#include <ZKStrings/catalogue/EntryText.h>
#include <ZKStrings/engine/StringLookup.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

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
