#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/system/windows/Text.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <utility>

#include <windows.h>

namespace zk {

namespace {

constexpr LONGLONG kLargestFile = LONGLONG{256} << 20;

class Handle {
 public:
  Handle(HANDLE handle, BOOL WINAPI (*close)(HANDLE)) : handle_(handle), close_(close) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (isOpen()) close_(handle_);
  }
  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
  BOOL WINAPI (*close_)(HANDLE);
};

/// Fills `bytes` from the file, and shortens them if the file is shorter. False if reading fails.
bool readInto(std::string& bytes, HANDLE file) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    DWORD got = 0;
    if (!ReadFile(file, bytes.data() + filled, static_cast<DWORD>(bytes.size() - filled), &got, nullptr))
      return false;
    if (got == 0) break;
    filled += got;
  }
  bytes.resize(filled);
  return true;
}

}  // namespace

bool isTemporary(const std::error_code& failure) {
  constexpr int kTemporary[] = {
      ERROR_TOO_MANY_OPEN_FILES, ERROR_NOT_ENOUGH_MEMORY, ERROR_OUTOFMEMORY,
      ERROR_NO_SYSTEM_RESOURCES, ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION,
      ERROR_COMMITMENT_LIMIT,    ERROR_WORKING_SET_QUOTA, ERROR_READ_FAULT,
      ERROR_IO_DEVICE,           ERROR_NOT_READY,         ERROR_BUSY,
      ERROR_SEM_TIMEOUT,         ERROR_NETNAME_DELETED,   ERROR_UNEXP_NET_ERR,
      ERROR_NETWORK_BUSY,        ERROR_OPERATION_ABORTED, ERROR_NETWORK_UNREACHABLE,
      ERROR_CONNECTION_ABORTED,
  };
  return failure.category() == std::system_category() &&
         std::find(std::begin(kTemporary), std::end(kTemporary), failure.value()) != std::end(kTemporary);
}

bool isRefusal(const std::error_code& failure) {
  return failure == std::error_code(ERROR_ACCESS_DENIED, std::system_category());
}

bool isFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of({"/\\:\0", 4}) == name.npos;
}

std::filesystem::path nativePath(const std::string& path) {
  return toUTF16(path);
}

std::string normalPath(const std::string& path) {
  const std::wstring wide = toUTF16(path);
  std::wstring normal(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  normal.resize(GetFullPathNameW(wide.c_str(), static_cast<DWORD>(normal.size()), normal.data(), nullptr));
  return toUTF8(normal);
}

bool pathExists(const std::string& path) {
  return GetFileAttributesW(systemPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool directoryExists(const std::string& path, std::error_code& failure) {
  failure.clear();
  const DWORD attributes = GetFileAttributesW(systemPath(path).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) return attributes & FILE_ATTRIBUTE_DIRECTORY;
  failure = lastFailure();
  return false;
}

std::error_code readRegularFile(const std::string& path, std::string& bytes) {
  // Other programs may go on writing, renaming and removing the file. Without backup semantics, a directory would be
  // reported as a file that must not be read.
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const Handle file(CreateFileW(systemPath(path).c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING,
                                FILE_FLAG_BACKUP_SEMANTICS, nullptr),
                    CloseHandle);
  if (!file.isOpen()) return lastFailure();
  BY_HANDLE_FILE_INFORMATION status{};
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return make_error_code(std::errc::not_supported);
  if (!GetFileInformationByHandle(file.get(), &status)) return lastFailure();
  if (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) return make_error_code(std::errc::not_supported);
  const LONGLONG size = LONGLONG{status.nFileSizeHigh} << 32 | status.nFileSizeLow;
  if (size > kLargestFile) return make_error_code(std::errc::file_too_large);
  bytes.resize(static_cast<std::size_t>(size));
  return readInto(bytes, file.get()) ? std::error_code() : lastFailure();
}

std::vector<DirectoryEntry> entriesOf(const std::string& path, std::error_code& failure) {
  failure.clear();
  std::vector<DirectoryEntry> entries;
  const std::filesystem::path all = std::filesystem::path(systemPath(path)) / L"*";
  WIN32_FIND_DATAW entry;
  const Handle directory(FindFirstFileW(all.c_str(), &entry), FindClose);
  for (bool isThere = directory.isOpen(); isThere; isThere = FindNextFileW(directory.get(), &entry)) {
    std::string name = toUTF8(entry.cFileName);
    const bool isDirectory = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    if (name != "." && name != "..") entries.push_back({std::move(name), isDirectory});
  }
  if (GetLastError() == ERROR_NO_MORE_FILES) return entries;
  failure = lastFailure();
  return {};
}

}  // namespace zk
