#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// Whether `word` is an identifier of C++ with ASCII letters, digits and "_", and not a reserved word.
[[nodiscard]] bool isIdentifier(std::string_view word);

/// Returns the name of the function or argument for `name`, a key or a placeholder. A reserved word of C++ gets an
/// underscore, and other characters than letters and digits are replaced as in keys. Empty if there is no letter or digit.
[[nodiscard]] std::string identifierFor(std::string_view name);

}  // namespace zk::tools
