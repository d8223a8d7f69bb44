#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zk::tools {

/// The number of code points of `text`, UTF-8; a byte that is not counts as one.
[[nodiscard]] std::size_t lengthOf(std::string_view text);

/// `text` with its ASCII capitals as small letters, as keys and language codes are compared.
[[nodiscard]] std::string lowerCased(std::string_view text);

}  // namespace zk::tools
