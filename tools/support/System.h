#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

// What the command needs from a system in addition to platform/system/.

namespace zk::tools {

/// Whether `stream` is a terminal that shows colours.
[[nodiscard]] bool isTerminal(std::FILE* stream);

/// Keeps users and the system from ending the process until the result is destroyed, unless they kill it.
[[nodiscard]] std::shared_ptr<void> holdBackSignals();

/// Locks `folder` until the process ends. Calls `beforeWaiting` before it waits for another process. Returns false if it cannot.
[[nodiscard]] bool lockFolder(const std::filesystem::path& folder, void (*beforeWaiting)());

/// Creates an empty file, which only its owner may read if `isPrivate`. Returns false if it cannot, or if there is one.
[[nodiscard]] bool createFile(const std::filesystem::path& file, bool isPrivate);

/// Whether the permissions of `file` allow the user to write it.
[[nodiscard]] bool mayWrite(const std::filesystem::path& file);

/// Gives `to` the permissions of the file `from` and, as far as the system allows it, its owner and group.
void copyAttributes(const std::filesystem::path& from, const std::filesystem::path& to);

/// Renames `from` to `to`, and replaces a file there in one step. Returns false if it cannot.
[[nodiscard]] bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace zk::tools
