#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// Whether `word` is a name that C++ takes, of ASCII letters, digits and "_", and no reserved word.
[[nodiscard]] bool isIdentifier(std::string_view word);

/// The name of the function or argument for `name`, a key or a placeholder: the same where C++ takes it. A
/// reserved word gets an underscore; a key with other signs, as an entry may have kept it, is named by the
/// rule for texts. Empty when it holds no letter or digit.
[[nodiscard]] std::string identifierFor(std::string_view name);

}  // namespace zk::tools
