#pragma once

#include <string>
#include <string_view>

namespace zk {

/// The one spelling that all canonically equivalent texts share (NFC), so that they can be compared and sorted
/// as bytes. `text` is UTF-8; bytes that are not equal only themselves. Any thread may call it.
[[nodiscard]] std::string canonicalForm(std::string_view text);

}  // namespace zk
