#include <ZKStrings/platform/system/DirectoryListing.h>
#include <ZKStrings/platform/system/Failure.h>

#include <memory>
#include <string_view>

#include <dirent.h>
#include <sys/stat.h>

namespace zk {

namespace {

struct Closer {
  void operator()(DIR* directory) const { closedir(directory); }
};

/// Whether `entry` of the directory at `path` is a directory. `failure` is set when that may be known in a
/// moment.
bool isDirectory(const dirent& entry, const std::string& path, std::error_code& failure) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_DIR;
  struct stat status {};
  if (stat((path + "/" + entry.d_name).c_str(), &status) == 0) return S_ISDIR(status.st_mode);
  if (isPassing(lastFailure())) failure = lastFailure();
  return false;
}

}  // namespace

// The standard library's iterator over directories ends the process when there is no memory for it.
std::vector<DirectoryEntry> entriesOf(const std::string& path, std::error_code& failure) {
  failure.clear();
  std::vector<DirectoryEntry> entries;
  const std::unique_ptr<DIR, Closer> directory(opendir(path.c_str()));
  if (!directory) failure = lastFailure();
  while (!failure) {
    errno = 0;
    const dirent* const entry = readdir(directory.get());
    if (!entry && errno == 0) return entries;
    if (!entry) {
      failure = lastFailure();
    } else if (const std::string_view name = entry->d_name; name != "." && name != "..") {
      entries.push_back({entry->d_name, isDirectory(*entry, path, failure)});
    }
  }
  return {};
}

}  // namespace zk
