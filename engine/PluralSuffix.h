#pragma once

#include <cstdint>
#include <string_view>

namespace zk {

/// What is appended to a key for `count`: the same for every language, whatever its grammar. Empty without a
/// count.
[[nodiscard]] constexpr std::string_view pluralSuffix(std::int64_t count) {
  switch (count) {
    case 0:
      return "_zero";
    case 1:
      return "_one";
    case 2:
      return "_two";
    default:
      // 3, 4 and 5. As an unsigned number, every negative count is far above them.
      return static_cast<std::uint64_t>(count) - 3 <= 2 ? "_few" : "_many";
  }
}

}  // namespace zk
