#include <ZKStrings/platform/system/windows/Text.h>

#include <cstddef>
#include <filesystem>

#include <windows.h>

namespace zk {

std::string toUTF8(std::wstring_view text) {
  const auto size = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string converted(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, converted.data(), needed, nullptr, nullptr);
  return converted;
}

std::wstring toUTF16(std::string_view text) {
  const auto size = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring converted(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, converted.data(), needed);
  return converted;
}

std::wstring systemPath(const std::string& path) {
  namespace fs = std::filesystem;
  const std::wstring kShare = LR"(\\)";
  fs::path wide = fs::path(toUTF16(path)).make_preferred();
  std::error_code failure;
  // Not always GetFullPathName, which may turn "C:\con.lproj" into a device.
  if (!wide.is_absolute() && !wide.native().starts_with(kShare)) wide = fs::absolute(wide, failure);
  const std::wstring& text = wide.native();
  if (failure || text.starts_with(LR"(\\?\)") || text.starts_with(LR"(\\.\)")) return text;
  const bool isOnShare = text.starts_with(kShare);  // which lexically_normal() does not know
  if (isOnShare) wide = text.substr(kShare.size());
  return (isOnShare ? LR"(\\?\UNC\)" : LR"(\\?\)") + wide.lexically_normal().native();
}

std::error_code lastFailure() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

}  // namespace zk
