#pragma once

#include <string>
#include <vector>

namespace zk::tools {

/// Returns a self-contained HTML file that shows every text of the project in every language, with example values.
/// Texts are never interpreted as markup. The context of a text names the places that use it in the folders `sources`.
/// Throws `CommandFailed` if the catalogue is wrong or the English texts cannot be read.
[[nodiscard]] std::string pageOf(const std::string& root, const std::vector<std::string>& sources = {});

}  // namespace zk::tools
