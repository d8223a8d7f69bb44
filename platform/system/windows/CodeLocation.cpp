#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/system/windows/Text.h>

#include <windows.h>

namespace zk {

namespace {

/// The path of the file that was loaded as `module`; of the executable if that is null.
std::string pathOf(HMODULE module, std::error_code& failure) {
  failure.clear();
  std::wstring path(MAX_PATH, L'\0');
  for (;; path.resize(path.size() * 2)) {
    const DWORD size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (size == 0) failure = lastFailure();
    if (size < path.size()) return toUTF8(path.substr(0, size));
  }
}

}  // namespace

std::string fileHolding(const void* address, std::error_code& failure) {
  // The file stays loaded, since the module frees what a thread keeps when the thread ends, however late.
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
  HMODULE module = nullptr;
  if (GetModuleHandleExW(kFlags, static_cast<LPCWSTR>(address), &module)) return pathOf(module, failure);
  failure = lastFailure();
  return {};
}

std::string executablePath(std::error_code& failure) {
  return pathOf(nullptr, failure);
}

}  // namespace zk
