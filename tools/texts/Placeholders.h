#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The names in the placeholders "%{name}" of `text`, in the order in which they stand there.
[[nodiscard]] std::vector<std::string_view> placeholderNames(std::string_view text);

/// What in a text is a placeholder, or may have been meant as one, with full-width or small signs too.
struct PlaceholderUse {
  std::size_t offset;  ///< in the text
  /// "%{name}"; written wrongly: "%{ name }", "%{name", "{name}", "%name", "％｛name｝"
  std::string_view spelled;
  std::string_view name;  ///< the first letters and digits in it; may be empty
  bool hasBrace;          ///< whether a brace opens it, and not only a percent sign
  bool isRight;           ///< whether it is "%{name}", with letters and digits alone in the braces
};

/// All of them, in the order in which they stand in `text`.
[[nodiscard]] std::vector<PlaceholderUse> placeholderUses(std::string_view text);

}  // namespace zk::tools
