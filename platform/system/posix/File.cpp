#include <ZKStrings/platform/system/File.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk {

namespace {

constexpr off_t kLargestFile = off_t{256} << 20;

/// Why the last system call failed.
std::error_code lastFailure() {
  return {errno, std::generic_category()};
}

struct Closer {
  void operator()(const int* file) const { close(*file); }
  void operator()(DIR* directory) const { closedir(directory); }
};

/// Fills `bytes` from the file, and shortens them if the file is shorter. False if reading fails.
bool readInto(std::string& bytes, int file) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = read(file, bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return true;
}

/// Whether `entry` of the directory at `path` is a directory. Sets `failure` if that is temporarily unknown.
bool isDirectory(const dirent& entry, const std::string& path, std::error_code& failure) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_DIR;
  struct stat status = {};
  if (stat((path + "/" + entry.d_name).c_str(), &status) == 0) return S_ISDIR(status.st_mode);
  if (isTemporary(lastFailure())) failure = lastFailure();
  return false;
}

}  // namespace

bool isTemporary(const std::error_code& failure) {
  constexpr int kTemporary[] = {EMFILE, ENFILE, ENOMEM,    EIO,      EINTR,  EAGAIN,
                                ESTALE, EBUSY,  ETIMEDOUT, ENOTCONN, ENOBUFS};
  const int number = failure.default_error_condition().value();
  return std::find(std::begin(kTemporary), std::end(kTemporary), number) != std::end(kTemporary);
}

bool isRefusal(const std::error_code& failure) {
  return failure == std::errc::permission_denied || failure == std::errc::operation_not_permitted;
}

bool isFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of({"/\0", 2}) == name.npos;
}

std::filesystem::path nativePath(const std::string& path) {
  return path;
}

std::string normalPath(const std::string& path) {
  return std::filesystem::path(path).lexically_normal().string();
}

bool pathExists(const std::string& path) {
  std::error_code unused;
  return std::filesystem::exists(path, unused);
}

bool directoryExists(const std::string& path, std::error_code& failure) {
  return std::filesystem::is_directory(path, failure);
}

std::error_code readRegularFile(const std::string& path, std::string& bytes) {
  // Without O_NONBLOCK, opening a FIFO would wait for a writer.
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return lastFailure();
  const std::unique_ptr<const int, Closer> closer(&file);
  struct stat status = {};
  if (fstat(file, &status) != 0) return lastFailure();
  if (!S_ISREG(status.st_mode)) return make_error_code(std::errc::not_supported);
  if (status.st_size > kLargestFile) return make_error_code(std::errc::file_too_large);
  bytes.resize(static_cast<std::size_t>(status.st_size));
  return readInto(bytes, file) ? std::error_code() : lastFailure();
}

// Not std::filesystem::directory_iterator, which ends the process if there is no memory for it.
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
