#pragma once

#include <cstddef>
#include <string_view>

namespace zk::tools {

/// How much room a text takes on a screen.
struct TextSize {
  std::size_t characters = 0;  ///< user-perceived ones (extended grapheme clusters)
  std::size_t columns = 0;     ///< two for a wide East Asian character or an emoji, none for an invisible one
};

/// The size of `text`, UTF-8, on one line.
[[nodiscard]] TextSize sizeOf(std::string_view text);

}  // namespace zk::tools
