#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ios>
#include <list>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMark = "catalogue/entries.json";

/// The name of a temporary file is that of its file, this text, and six random characters. .gitignore and the rules
/// for installations (cmake/) name it too.
constexpr std::string_view kTemporary = ".zkstrings-";
constexpr std::string_view kRandom = "XXXXXX";

bool isTemporary(const fs::path& path) {
  const std::string name = path.filename().string();
  return name.size() > kTemporary.size() + kRandom.size() &&
         name.rfind(kTemporary) == name.size() - kTemporary.size() - kRandom.size();
}

template <class Iterator>
void removeTemporaryFiles(const fs::path& folder) {
  std::error_code failure;
  for (Iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code ignored;
    if (isTemporary(entry->path())) fs::remove(entry->path(), ignored);
  }
}

[[noreturn]] void failToWrite(const std::string& path) {
  fail(path, "the file cannot be written; check its permissions and its folder's, and the disk space");
}

/// Blocks, during its lifetime, the signals with which users and systems end a process.
class SignalsHeldBack {
 public:
  SignalsHeldBack() {
    sigset_t ends;
    sigemptyset(&ends);
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) sigaddset(&ends, signal);
    pthread_sigmask(SIG_BLOCK, &ends, &before_);
  }
  ~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalsHeldBack(const SignalsHeldBack&) = delete;
  SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

 private:
  sigset_t before_{};
};

/// The folders that files need. Its destructor removes those it has made that are still empty.
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
  std::set<fs::path, std::greater<>> made_;  // inner folders come first
};

/// A file next to the one that it may replace. Its destructor removes it unless it did.
class TemporaryFile {
 public:
  /// `path` is the name of the file for messages.
  TemporaryFile(const fs::path& target, const std::string& path, std::string_view bytes) {
    std::string name = fmt::format("{}{}{}", target.string(), kTemporary, kRandom);
    const int file = mkstemp(name.data());
    if (file < 0) failToWrite(path);
    close(file);
    name_ = name;
    std::ofstream stream(name_, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (stream.good()) return;
    unlink(name_.c_str());
    failToWrite(path);
  }
  ~TemporaryFile() {
    if (!name_.empty()) unlink(name_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Takes the owner, group and permissions of `file`, or those of a new file if it is null.
  void setAttributes(const struct stat* file) const {
    if (file) {
      static_cast<void>(!chown(name_.c_str(), file->st_uid, file->st_gid));  // only root may always do this
      chmod(name_.c_str(), file->st_mode & 07777U);
    } else {
      const mode_t mask = umask(0);
      umask(mask);
      chmod(name_.c_str(), 0666U & ~mask);
    }
  }

  /// Whether the file has taken the place of `target`.
  bool replace(const fs::path& target) {
    if (std::rename(name_.c_str(), target.c_str()) != 0) return false;
    name_.clear();
    return true;
  }

 private:
  std::string name_;
};

/// A file that is to change: its new contents and its old ones, in temporary files.
class StagedFile {
 public:
  StagedFile(const std::string& root, const FileChange& change, Folders& folders)
      : path_(change.path), target_(pathInProject(root, change.path)) {
    folders.make(target_.parent_path());
    struct stat before = {};
    const bool exists = stat(target_.c_str(), &before) == 0;
    if (exists && (!S_ISREG(before.st_mode) || access(target_.c_str(), W_OK) != 0)) failToWrite(path_);
    new_ = std::make_unique<TemporaryFile>(target_, path_, change.bytes);
    new_->setAttributes(exists ? &before : nullptr);
    if (!exists) return;
    old_ = std::make_unique<TemporaryFile>(target_, path_, readFile("", target_));
    old_->setAttributes(&before);
  }

  void putInPlace() {
    if (!new_->replace(target_)) failToWrite(path_);
    isInPlace_ = true;
  }

  void takeBack() {
    std::error_code failure;
    if (!isInPlace_) return;
    if (!old_) {
      fs::remove(target_, failure);
    } else {
      old_->replace(target_);
    }
  }

 private:
  const std::string path_;
  const fs::path target_;
  std::unique_ptr<TemporaryFile> new_;
  std::unique_ptr<TemporaryFile> old_;
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
  fail(kMark, "not found in the working directory or above it; run the command in a project, or use --root");
}

std::string rootAt(const std::string& directory) {
  std::error_code failure;
  if (fs::exists(fs::path(directory) / kMark, failure)) return directory;
  fail(kMark, "no such file; --root needs the folder that has catalogue/");
}

std::string pathInProject(const std::string& root, const std::string& path) {
  std::error_code failure;
  const fs::path target = fs::weakly_canonical(fs::path(root) / path, failure);
  if (failure) failToWrite(path);
  if (root.empty()) return target.string();
  fs::path folder = fs::weakly_canonical(root, failure);
  if (!folder.has_filename()) folder = folder.parent_path();  // the name ended in a slash
  if (std::mismatch(folder.begin(), folder.end(), target.begin(), target.end()).first != folder.end())
    fail(path, fmt::format("a symbolic link leads out of the project, to {}; replace the link with a file",
                           target.string()));
  return target.string();
}

void lockProject(const std::string& root) {
  // The folder stays open until the process ends, which releases the lock.
  const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (flock(folder, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK) return;  // a file system without locks, or no such folder yet
    std::fputs("Another zkstrings is changing this project; waiting for it.\n", stderr);
    if (flock(folder, LOCK_EX) != 0) return;
  }
  removeTemporaryFiles<fs::directory_iterator>(root);
  for (const char* const name : {"catalogue", "resources"})
    removeTemporaryFiles<fs::recursive_directory_iterator>(fs::path(root) / name);
}

std::string readFile(const std::string& root, const std::string& path) {
  std::optional<std::string> bytes = contentsOfFile((fs::path(root) / path).string());
  if (!bytes) fail(path, "the file cannot be read; check that it exists, is a file, and is readable");
  return *std::move(bytes);
}

void writeFiles(const std::string& root, const std::vector<FileChange>& changes) {
  const SignalsHeldBack heldBack;
  Folders folders;
  std::list<StagedFile> files;
  for (const FileChange& change : changes) files.emplace_back(root, change, folders);
  try {
    for (StagedFile& file : files) file.putInPlace();
  } catch (const CommandFailed&) {
    for (StagedFile& file : files) file.takeBack();
    throw;
  }
}

void writeFile(const std::string& root, const std::string& path, std::string_view bytes) {
  writeFiles(root, {{path, std::string(bytes)}});
}

}  // namespace zk::tools
