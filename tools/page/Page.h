#pragma once

#include <string>

namespace zk::tools {

/// One HTML file that shows every text of the project at `root` in every language. It needs nothing else, no
/// network and no other file, and whatever stands in a text is shown, never run. Throws `CommandFailed` when
/// the catalogue is wrong, or there is no folder of English texts.
[[nodiscard]] std::string pageOf(const std::string& root);

}  // namespace zk::tools
