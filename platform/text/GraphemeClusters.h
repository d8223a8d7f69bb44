#pragma once

#include <cstddef>
#include <string_view>

namespace zk {

/// The size in bytes of the first extended grapheme cluster of `text`, which is UTF-8 and not empty: what a
/// user takes for one character. A byte that is not UTF-8 is a cluster of its own, whatever surrounds it.
[[nodiscard]] std::size_t firstClusterSize(std::string_view text);

}  // namespace zk
