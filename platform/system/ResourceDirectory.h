#pragma once

#include <string>
#include <system_error>

namespace zk {

/// Where the resources of some code may be, seen from the directory of the library or executable that holds
/// it.
struct ResourcePlaces {
  std::string above;      ///< there, or one or two levels up: "share/ZKStrings"
  std::string installed;  ///< there, when they are not above; may be empty, for nowhere else, or absolute
};

/// The places of this module's resources, as the module was configured to be installed.
[[nodiscard]] const ResourcePlaces& modulePlaces();

/// The directory with the resources of the code whose library or executable is `codeFile`, an absolute path:
/// the nearest of `places`. They are looked for from the path as given, and then from what that path is
/// without links.
///
/// Empty when there is none, and when `codeFile` is empty; `failure` then says whether that may pass.
[[nodiscard]] std::string resourceDirectory(const std::string& codeFile, const ResourcePlaces& places,
                                            std::error_code& failure);

}  // namespace zk
