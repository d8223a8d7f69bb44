#include <ZKStrings/engine/Substitutions.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/TextSearch.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

namespace {

/// Whether all names are ASCII and cannot contain the beginning or the end of a placeholder.
bool haveSimpleNames(const Substitutions& substitutions) {
  for (const Substitutions::Pair& pair : substitutions) {
    if (!isAsciiWithout<'%', '}'>(pair.name)) return false;
  }
  return true;
}

/// The pair whose placeholder is at the beginning of `text`, which begins with "%{"; null if there is none.
const Substitutions::Pair* pairAt(std::string_view text, const Substitutions& substitutions) {
  const std::string_view rest = text.substr(2);
  for (const Substitutions::Pair& pair : substitutions) {
    const std::size_t end = pair.name.size();
    if (rest.size() > end && rest[end] == '}' && rest.starts_with(pair.name)) return &pair;
  }
  return nullptr;
}

constexpr std::size_t kRoom = 512;

/// Writes `text` with all placeholders filled in to `to`, which has room for `kRoom` bytes, and returns the end. Returns
/// null if the result is too long. Also returns null if replacing one pair after the other may have another result: if
/// a placeholder has no pair, an accent follows a placeholder, or a value completes a new placeholder.
char* fillInAtOnce(char* to, std::string_view text, const Substitutions& substitutions) {
  const char* const begin = to;
  std::size_t room = kRoom - kCopySlack;
  if (text.size() > room || !haveSimpleNames(substitutions)) return nullptr;
  room -= text.size();
  bool hasPercent = false;
  for (std::size_t at = 0;;) {
    const std::size_t mark = copyUntil('%', to, text, at);
    to += mark - at;
    if (mark == text.size()) break;
    if (!text.substr(mark).starts_with("%{")) {
      hasPercent = true;
      *to++ = '%';
      at = mark + 1;
      continue;
    }
    const Substitutions::Pair* const pair = pairAt(text.substr(mark), substitutions);
    if (!pair) return nullptr;
    const std::string_view value = pair->text;
    at = mark + pair->name.size() + 3;
    if (value.size() > room || !hasBorderBefore(value) || !hasBorderBefore(text.substr(at))) return nullptr;
    room -= value.size();
    if (!isAsciiWithout<'%'>(value)) hasPercent = true;
    to = copyBytes(to, value.data(), value.size());
  }
  const bool makesAnother = hasPercent && std::string_view(begin, to).find("%{") != std::string_view::npos;
  return makesAnother ? nullptr : to;
}

}  // namespace

void Substitutions::stopIfRepeated() const {
  std::vector<std::string> names;
  for (const Pair& pair : *this) names.push_back(canonicalForm(pair.name));
  std::sort(names.begin(), names.end());
  if (std::adjacent_find(names.begin(), names.end()) != names.end()) __builtin_trap();
}

std::string internal::applySubstitutions(std::string_view text, const Substitutions& substitutions) {
  char filled[kRoom];
  if (char* const end = fillInAtOnce(filled, text, substitutions)) return {filled, end};
  std::string result(text);
  for (const auto& [name, value] : substitutions) {
    replaceOccurrences(result, std::string("%{").append(name).append("}"), value);
  }
  return result;
}

}  // namespace zk
