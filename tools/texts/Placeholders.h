#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The names in the placeholders "%{name}" of `text`, in order.
[[nodiscard]] std::vector<std::string_view> placeholderNames(std::string_view text);

/// A placeholder of a text, or something that looks like a misspelt one, possibly with full-width or small signs.
struct PlaceholderUse {
  std::size_t offset;  ///< in the text
  /// "%{name}"; misspelt: "%{ name }", "%{name", "{name}", "%name", "％｛name｝"
  std::string_view spelled;
  std::string_view name;  ///< the first letters and digits in it; may be empty
  bool hasBrace;          ///< whether it has an opening brace, not only a percent sign
  bool isRight;           ///< whether it is "%{name}", with only letters and digits in the braces
};

/// Returns all placeholders and misspelt ones in `text`, in order.
[[nodiscard]] std::vector<PlaceholderUse> placeholderUses(std::string_view text);

}  // namespace zk::tools
