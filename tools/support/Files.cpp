#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/System.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ios>
#include <list>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMark = "catalogue/entries.json";

/// Temporary files are named after their file, this text and six random letters. .gitignore and cmake/ contain it too.
constexpr std::string_view kTemporary = ".zkstrings-";
constexpr std::size_t kRandomLetters = 6;

bool isTemporary(const fs::path& path) {
  const std::string name = path.filename().string();
  return name.size() > kTemporary.size() + kRandomLetters &&
         name.rfind(kTemporary) == name.size() - kTemporary.size() - kRandomLetters;
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

/// The ending of the name of a new temporary file.
std::string randomEnding() {
  static std::random_device random;
  std::string ending(kTemporary);
  while (ending.size() < kTemporary.size() + kRandomLetters)
    ending += static_cast<char>(std::uniform_int_distribution<int>('a', 'z')(random));
  return ending;
}

/// A file next to the one that it may replace. Its destructor removes it unless it did.
class TemporaryFile {
 public:
  /// `path` is the name of the file for messages. If `target` exists, the new file has its attributes.
  TemporaryFile(const fs::path& target, bool exists, const std::string& path, std::string_view bytes)
      : name_(target) {
    name_ += randomEnding();
    if (!createFile(name_, exists)) failToWrite(path);
    std::ofstream stream(name_, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (exists) copyAttributes(target, name_);
    if (stream.good()) return;
    remove();
    failToWrite(path);
  }
  ~TemporaryFile() { remove(); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Whether the file has taken the place of `target`.
  bool replace(const fs::path& target) {
    if (!replaceFile(name_, target)) return false;
    name_.clear();
    return true;
  }

 private:
  void remove() const {
    std::error_code failure;
    if (!name_.empty()) fs::remove(name_, failure);
  }

  fs::path name_;
};

/// A file that is to change: its new contents and its old ones, in temporary files.
class StagedFile {
 public:
  StagedFile(const std::string& root, const FileChange& change, Folders& folders)
      : path_(change.path), target_(nativePath(pathInProject(root, change.path))) {
    folders.make(target_.parent_path());
    std::error_code failure;
    const bool exists = fs::exists(target_, failure);
    if (exists && (!fs::is_regular_file(target_, failure) || !mayWrite(target_))) failToWrite(path_);
    new_ = std::make_unique<TemporaryFile>(target_, exists, path_, change.bytes);
    if (exists)
      old_ = std::make_unique<TemporaryFile>(target_, exists, path_, readFile("", target_.string()));
  }

  void putInPlace() {
    if (!new_->replace(target_))
      fail(path_,
           "the file cannot be replaced; close the programs that have it open, and run the command again");
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

std::string pathBelow(const std::string& folder, const std::string& path) {
  return (nativePath(folder) / nativePath(path)).generic_string();
}

std::string absolutePath(const std::string& path) {
  return (fs::current_path() / nativePath(path)).generic_string();
}

std::string findRoot() {
  std::error_code failure;
  fs::path directory = fs::current_path(failure);
  while (!failure) {
    if (fs::exists(directory / kMark, failure)) return directory.generic_string();
    if (directory == directory.parent_path()) break;
    directory = directory.parent_path();
    failure.clear();
  }
  fail(kMark, "not found in the working directory or above it; run the command in a project, or use --root");
}

std::string rootAt(const std::string& directory) {
  if (pathExists(pathBelow(directory, kMark))) return directory;
  fail(kMark, "no such file; --root needs the folder that contains catalogue/");
}

std::string pathInProject(const std::string& root, const std::string& path) {
  std::error_code failure;
  const fs::path target = fs::weakly_canonical(nativePath(root) / nativePath(path), failure);
  if (failure) failToWrite(path);
  if (root.empty()) return target.generic_string();
  fs::path folder = fs::weakly_canonical(nativePath(root), failure);
  if (!folder.has_filename()) folder = folder.parent_path();  // the name ended in a slash
  if (std::mismatch(folder.begin(), folder.end(), target.begin(), target.end()).first != folder.end())
    fail(path, fmt::format("a symbolic link leads out of the project, to {}; replace the link with a file",
                           target.generic_string()));
  return target.generic_string();
}

void lockProject(const std::string& root) {
  const fs::path folder = nativePath(root);
  const auto say = [] {
    std::fputs("Another zkstrings is changing this project; waiting for it.\n", stderr);
  };
  if (!lockFolder(folder, say)) return;
  removeTemporaryFiles<fs::directory_iterator>(folder);
  for (const char* const name : {"catalogue", "resources"})
    removeTemporaryFiles<fs::recursive_directory_iterator>(folder / name);
}

std::string readFile(const std::string& root, const std::string& path) {
  std::optional<std::string> bytes = contentsOfFile(pathBelow(root, path));
  if (!bytes) fail(path, "the file cannot be read; check that it exists, is a file, and is readable");
  return *std::move(bytes);
}

void writeFiles(const std::string& root, const std::vector<FileChange>& changes) {
  const std::shared_ptr<void> heldBack = holdBackSignals();
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
