#include <ZKStrings/platform/system/Failure.h>
#include <ZKStrings/platform/system/ResourceDirectory.h>

#include <filesystem>

namespace zk {

namespace {

namespace fs = std::filesystem;

/// The nearest of the places of the resources, seen from a directory that holds the module's file.
std::string resourcesSeenFrom(fs::path directory, std::error_code& failure) {
  constexpr int kLevels = 3;
  const auto isThere = [&](const fs::path& candidate) { return fs::is_directory(candidate, failure); };
  // An absolute place stands for itself, wherever it is seen from.
  const fs::path installed = (directory / ZK_RESOURCES_INSTALLED).lexically_normal();
  for (int level = 0; level < kLevels; ++level, directory = directory.parent_path()) {
    const fs::path candidate = directory / ZK_RESOURCES_ABOVE;
    if (isThere(candidate)) return candidate.string();
    if (isPassing(failure)) return {};
  }
  return isThere(installed) ? installed.string() : std::string();
}

}  // namespace

std::string resourceDirectory(const std::string& moduleFile, std::error_code& failure) {
  failure.clear();
  if (moduleFile.empty()) return {};
  const fs::path asLoaded = fs::path(moduleFile).lexically_normal();
  std::string found = resourcesSeenFrom(asLoaded.parent_path(), failure);
  if (!found.empty() || isPassing(failure)) return found;

  const fs::path withoutLinks = fs::canonical(moduleFile, failure);
  if (failure || withoutLinks == asLoaded) return {};
  return resourcesSeenFrom(withoutLinks.parent_path(), failure);
}

}  // namespace zk
