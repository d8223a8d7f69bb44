#pragma once

#include <string>
#include <system_error>

namespace zk::internal {

/// Where the resources of some code may be, relative to the directory of the library or executable that holds it.
struct ResourcePlaces {
  std::string above;      ///< in that directory or up to two levels above it: "share/ZKStrings"
  std::string installed;  ///< tried after `above`: an absolute or relative path, or empty
};

/// Returns the directory with the resources of the code in `codeFile`, an absolute path: the nearest of `places`. The
/// search starts at that path as it is, and then at that path without links. Returns an empty path if there is none,
/// or if `codeFile` is empty; `failure` is then the reason.
[[nodiscard]] std::string resourceDirectory(const std::string& codeFile, const ResourcePlaces& places,
                                            std::error_code& failure);

}  // namespace zk::internal
