#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace zk {

struct DirectoryEntry {
  std::string name;
  bool isDirectory;  ///< or a link to one
};

/// What the directory at `path` holds, "." and ".." left out, in no particular order. Nothing when it cannot
/// be listed to its end; `failure` says why.
[[nodiscard]] std::vector<DirectoryEntry> entriesOf(const std::string& path, std::error_code& failure);

}  // namespace zk
