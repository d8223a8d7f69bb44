#include <ZKStrings/tools/Placeholders.h>

namespace zk::tools {

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

}  // namespace zk::tools
