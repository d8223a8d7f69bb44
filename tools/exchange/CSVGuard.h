#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// `text` as a cell that no spreadsheet takes for a formula: behind an apostrophe when it begins with one of
/// = + - @, a tab or a carriage return, or with apostrophes before one of them.
[[nodiscard]] std::string guarded(std::string_view text);

/// The text that such a cell holds: without that apostrophe, if there is one.
[[nodiscard]] std::string_view unguarded(std::string_view cell);

}  // namespace zk::tools
