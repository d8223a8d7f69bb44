#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/system/ResourceDirectory.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace zk::internal {

namespace {

namespace fs = std::filesystem;

/// The nearest of `places`, seen from the directory of the code's file.
std::string resourcesSeenFrom(fs::path directory, const ResourcePlaces& places, std::error_code& failure) {
  constexpr int kLevels = 3;
  // An absolute place replaces the directory.
  const std::string installed = normalPath((directory / places.installed).string());
  for (int level = 0; level < kLevels; ++level, directory = directory.parent_path()) {
    std::string candidate = (directory / places.above).string();
    if (directoryExists(candidate, failure)) return candidate;
    if (isTemporary(failure)) return {};
  }
  return !places.installed.empty() && directoryExists(installed, failure) ? installed : std::string();
}

}  // namespace

std::string resourceDirectory(const std::string& codeFile, const ResourcePlaces& places,
                              std::error_code& failure) {
  failure.clear();
  if (codeFile.empty()) return {};
  const fs::path asLoaded = nativePath(normalPath(codeFile));
  std::string found = resourcesSeenFrom(asLoaded.parent_path(), places, failure);
  if (!found.empty() || isTemporary(failure)) return found;

  const fs::path withoutLinks = fs::canonical(nativePath(codeFile), failure);
  if (failure || withoutLinks == asLoaded) return {};
  return resourcesSeenFrom(withoutLinks.parent_path(), places, failure);
}

}  // namespace zk::internal
