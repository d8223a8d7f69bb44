#pragma once

#include <cstddef>
#include <string_view>

namespace zk::tools {

/// The number of user-perceived characters (extended grapheme clusters) of `text`, UTF-8. A byte that is not
/// UTF-8 counts as one.
[[nodiscard]] std::size_t charactersIn(std::string_view text);

}  // namespace zk::tools
