#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// `key` as the reference of a PO entry, which cannot hold blanks: what is no ASCII letter, digit or one of
/// "_-." as "%" and the byte in hexadecimal.
[[nodiscard]] std::string referenceTo(std::string_view key);

/// The key that such a reference names, also with "+" for a blank.
[[nodiscard]] std::string keyNamedBy(std::string_view reference);

}  // namespace zk::tools
