#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The one of `candidates` that `word` is most likely a misspelling of, the first of several that are as
/// near; nothing when none is near enough. Distance is the number of bytes to insert, remove or replace.
[[nodiscard]] std::optional<std::string_view> nearest(std::string_view word,
                                                      const std::vector<std::string_view>& candidates);

}  // namespace zk::tools
