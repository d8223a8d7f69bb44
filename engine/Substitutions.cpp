#include <ZKStrings/engine/Substitutions.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/TextSearch.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

void Substitutions::stopIfSame(std::string_view one, std::string_view other) {
  const bool areAscii = isAsciiWithout(one, {}) && isAsciiWithout(other, {});
  if (areAscii ? one == other : canonicalForm(one) == canonicalForm(other)) __builtin_trap();
}

void Substitutions::stopAtRepetition(const std::vector<Pair>& pairs) {
  std::vector<std::string> names;
  names.reserve(pairs.size());
  for (const Pair& pair : pairs) names.push_back(canonicalForm(pair.name));
  std::sort(names.begin(), names.end());
  if (std::adjacent_find(names.begin(), names.end()) != names.end()) __builtin_trap();
}

}  // namespace zk
