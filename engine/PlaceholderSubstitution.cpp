#include <ZKStrings/engine/JoinedText.h>
#include <ZKStrings/engine/PlaceholderSubstitution.h>
#include <ZKStrings/platform/text/TextSearch.h>

namespace zk {

std::string applySubstitutions(std::string_view text, const Substitutions& substitutions) {
  if (substitutions.begin() == substitutions.end()) return std::string(text);
  std::size_t size = text.size();
  for (const auto& [name, value] : substitutions) size += value.size();
  std::string result;
  result.reserve(size);  // enough for each placeholder once, so that one buffer serves for all of them
  result = text;
  for (const auto& [name, value] : substitutions) {
    replaceOccurrences(result, JoinedText{"%{", name, "}"}, value);
  }
  return result;
}

}  // namespace zk
