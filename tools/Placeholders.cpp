#include <ZKStrings/tools/Placeholders.h>

#include <algorithm>
#include <optional>

namespace zk::tools {

namespace {

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// Of any script; what else is not ASCII passes as well, and is then the name of no argument.
bool isLetterOrDigit(char c) {
  return isNameCharacter(c) || static_cast<unsigned char>(c) >= 0x80;
}

/// The first run of ASCII letters and digits in `text`.
std::string_view nameIn(std::string_view text) {
  const auto* const begin = std::find_if(text.begin(), text.end(), isNameCharacter);
  const auto* const end = std::find_if_not(begin, text.end(), isNameCharacter);
  return {begin, end};
}

/// The placeholder, right or wrong, with which `text` begins.
std::optional<PlaceholderUse> useAtBegin(std::string_view text) {
  const std::size_t sign = text.starts_with('%') ? 1 : 0;
  const bool hasBrace = text.substr(sign).starts_with('{');
  if (!hasBrace) {
    const bool hasName = sign == 1 && text.size() > 1 && isNameCharacter(text[1]);
    if (!hasName) return std::nullopt;
    const std::string_view name = nameIn(text);
    return PlaceholderUse{0, text.substr(0, 1 + name.size()), name, false};
  }
  const std::string_view inside = text.substr(sign + 1, text.find_first_of("{%}\n", sign + 1) - sign - 1);
  const bool isClosed = text.substr(sign + 1 + inside.size()).starts_with('}');
  const bool isRight =
      sign == 1 && isClosed && !inside.empty() && std::all_of(inside.begin(), inside.end(), isLetterOrDigit);
  const std::string_view name = isRight ? inside : nameIn(inside);
  const std::size_t insideSize = isClosed ? inside.size() + 1 : inside.find(name) + name.size();
  return PlaceholderUse{0, text.substr(0, sign + 1 + insideSize), name, isRight};
}

}  // namespace

std::vector<std::string_view> placeholderNames(std::string_view text) {
  std::vector<std::string_view> names;
  for (std::size_t at = text.find("%{"); at != std::string_view::npos; at = text.find("%{", at)) {
    at += 2;
    const std::size_t end = text.find('}', at);
    if (end == std::string_view::npos) break;
    names.push_back(text.substr(at, end - at));
  }
  return names;
}

std::vector<PlaceholderUse> placeholderUses(std::string_view text) {
  std::vector<PlaceholderUse> uses;
  for (std::size_t at = 0; at < text.size();) {
    std::optional<PlaceholderUse> use = useAtBegin(text.substr(at));
    if (!use) {
      ++at;
      continue;
    }
    use->offset = at;
    at += use->spelled.size();
    uses.push_back(*use);
  }
  return uses;
}

}  // namespace zk::tools
