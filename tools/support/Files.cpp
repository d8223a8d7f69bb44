#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Undisturbed.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <list>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMark = "catalogue/entries.json";

[[noreturn]] void failToWrite(const std::string& path) {
  fail(path, "the file cannot be written; see that it and its directory may be written and have room");
}

bool write(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

/// Makes an empty file whose name begins with `target` and is no other's; empty when that fails.
fs::path madeBeside(const fs::path& target) {
  std::string path = target.string() + ".XXXXXX";
  const int file = mkstemp(path.data());
  if (file < 0) return {};
  close(file);
  return path;
}

/// What users want a new file to have.
fs::perms usualPermissions() {
  const mode_t mask = umask(0);
  umask(mask);
  return static_cast<fs::perms>(0666 & ~mask);
}

/// The folders that files need. Those that were made are gone with this object unless something is in them.
class Folders {
 public:
  Folders() = default;
  ~Folders() {
    std::error_code failure;
    for (const fs::path& folder : made_) fs::remove(folder, failure);
  }
  Folders(const Folders&) = delete;
  Folders& operator=(const Folders&) = delete;

  void make(fs::path folder) {
    std::error_code failure;
    const fs::path deepest = folder;
    for (; !fs::exists(folder, failure) && folder.has_relative_path(); folder = folder.parent_path())
      made_.insert(folder);
    fs::create_directories(deepest, failure);
  }

 private:
  std::set<fs::path, std::greater<>> made_;  // what is inside comes first
};

/// The new contents of a file, written beside it; gone with this object unless they took the file's place.
class StagedFile {
 public:
  StagedFile(const std::string& root, const FileChange& change, Folders& folders) : path_(change.path) {
    std::error_code failure;
    target_ = fs::weakly_canonical(fs::path(root) / change.path, failure);
    if (failure) target_ = fs::path(root) / change.path;
    folders.make(target_.parent_path());
    const fs::file_status before = fs::status(target_, failure);
    const bool exists = fs::exists(before);
    if (exists && (!fs::is_regular_file(before) || access(target_.c_str(), W_OK) != 0)) failToWrite(path_);
    old_ = exists ? contentsOfFile(target_.string()) : std::nullopt;
    beside_ = madeBeside(target_);
    if (!write(beside_, change.bytes)) discard();
    fs::permissions(beside_, exists ? before.permissions() : usualPermissions(), failure);
  }
  ~StagedFile() {
    std::error_code failure;
    if (!isInPlace_) fs::remove(beside_, failure);
  }
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;

  void putInPlace() {
    std::error_code failure;
    fs::rename(beside_, target_, failure);
    if (failure) failToWrite(path_);
    isInPlace_ = true;
  }

  void takeBack() const {
    std::error_code failure;
    if (!isInPlace_) return;
    if (old_) {
      write(target_, *old_);
    } else {
      fs::remove(target_, failure);
    }
  }

 private:
  [[noreturn]] void discard() const {
    std::error_code failure;
    fs::remove(beside_, failure);
    failToWrite(path_);
  }

  const std::string path_;
  fs::path target_;
  fs::path beside_;
  std::optional<std::string> old_;
  bool isInPlace_ = false;
};

}  // namespace

std::string findRoot() {
  std::error_code failure;
  fs::path directory = fs::current_path(failure);
  while (!failure) {
    if (fs::exists(directory / kMark, failure)) return directory.string();
    if (directory == directory.parent_path()) break;
    directory = directory.parent_path();
    failure.clear();
  }
  fail(kMark,
       "not found from the working directory upward; run the command inside the project, or name it with "
       "--root");
}

std::string rootAt(const std::string& directory) {
  std::error_code failure;
  if (fs::exists(fs::path(directory) / kMark, failure)) return directory;
  fail((fs::path(directory) / kMark).string(), "no such file; --root names the folder that holds catalogue/");
}

std::string readFile(const std::string& root, const std::string& path) {
  std::optional<std::string> bytes = contentsOfFile((fs::path(root) / path).string());
  if (!bytes) fail(path, "the file cannot be read; see that it exists, is a file and may be read");
  return *std::move(bytes);
}

void writeFiles(const std::string& root, const std::vector<FileChange>& changes) {
  const SignalsHeldBack undisturbed;
  Folders folders;
  std::list<StagedFile> files;
  for (const FileChange& change : changes) files.emplace_back(root, change, folders);
  try {
    for (StagedFile& file : files) file.putInPlace();
  } catch (const CommandFailed&) {
    for (const StagedFile& file : files) file.takeBack();
    throw;
  }
}

void writeFile(const std::string& root, const std::string& path, std::string_view bytes) {
  writeFiles(root, {{path, std::string(bytes)}});
}

}  // namespace zk::tools
