#include <ZKStrings/platform/system/windows/Text.h>
#include <ZKStrings/tools/support/System.h>

#include <mutex>
#include <string>

#include <fmt/format.h>
#include <io.h>
#include <windows.h>

namespace zk::tools {

bool isTerminal(std::FILE* stream) {
  const auto console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) && SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

std::shared_ptr<void> holdBackSignals() {
  static auto& isBusy = *new std::mutex;
  // The handler runs on its own thread. It waits, and then lets the system end the process.
  static const BOOL isSet = SetConsoleCtrlHandler([](DWORD) -> BOOL { return isBusy.lock(), FALSE; }, TRUE);
  static_cast<void>(isSet);
  isBusy.lock();
  return {&isBusy, [](std::mutex* held) { held->unlock(); }};
}

bool lockFolder(const std::filesystem::path& folder, void (*beforeWaiting)()) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE opened =
      CreateFileW(folder.c_str(), 0, kShared, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  BY_HANDLE_FILE_INFORMATION status{};
  const BOOL isKnown = GetFileInformationByHandle(opened, &status);
  CloseHandle(opened);
  if (!isKnown) return false;
  // The folder's numbers, because its path can be written in several ways.
  const std::string name = fmt::format("zkstrings-{}-{}-{}", status.dwVolumeSerialNumber,
                                       status.nFileIndexHigh, status.nFileIndexLow);
  // The mutex stays open until the process ends, which releases it.
  const HANDLE lock = CreateMutexA(nullptr, FALSE, name.c_str());
  if (WaitForSingleObject(lock, 0) == WAIT_TIMEOUT) {
    beforeWaiting();
    std::fflush(stderr);
    WaitForSingleObject(lock, INFINITE);
  }
  return lock != nullptr;
}

bool createFile(const std::filesystem::path& file, bool) {
  const HANDLE created =
      CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  return created != INVALID_HANDLE_VALUE && CloseHandle(created);
}

bool mayWrite(const std::filesystem::path& file) {
  return _waccess(file.c_str(), 2) == 0;
}

void copyAttributes(const std::filesystem::path& from, const std::filesystem::path& to) {
  SetFileAttributesW(to.c_str(), GetFileAttributesW(from.c_str()));
}

bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to) {
  // Editors and virus scanners soon close a file.
  constexpr int kAttempts = 40;
  constexpr DWORD kPause = 50;  // milliseconds
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING)) return true;
    if (GetLastError() != ERROR_SHARING_VIOLATION && GetLastError() != ERROR_ACCESS_DENIED) return false;
    Sleep(kPause);
  }
  return false;
}

}  // namespace zk::tools
