#pragma once

#include <string>
#include <vector>

namespace zk::tools {

/// An HTML file that shows every text of the project at `root` in every language, finished by the engine with
/// example values. The file needs no other file and no network. No text in it is interpreted as markup or script.
/// The context of a text names the places that use it in the folders `sources`. Throws `CommandFailed` if the
/// catalogue is wrong or the folder of English texts cannot be read.
[[nodiscard]] std::string pageOf(const std::string& root, const std::vector<std::string>& sources = {});

}  // namespace zk::tools
