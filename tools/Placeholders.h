#pragma once

#include <string_view>
#include <vector>

namespace zk::tools {

/// The names in the placeholders "%{name}" of `text`, in the order in which they stand there.
[[nodiscard]] std::vector<std::string_view> placeholderNames(std::string_view text);

}  // namespace zk::tools
