#pragma once

#include <string>
#include <system_error>

namespace zk {

/// The directory with the resources of the module whose library or executable is `moduleFile`, an absolute
/// path: the nearest directory share/ZKStrings at or above the file's directory, two levels up at most, or
/// else the place that the module was configured to be installed with, seen from there. It is looked for from
/// the path as given, and then from what that path is without links.
///
/// Empty when there is none, and when `moduleFile` is empty; `failure` then says whether that may pass.
[[nodiscard]] std::string resourceDirectory(const std::string& moduleFile, std::error_code& failure);

}  // namespace zk
