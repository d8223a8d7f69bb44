#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/system/File.h>

#include <cerrno>
#include <cinttypes>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include <dlfcn.h>
#include <sys/auxv.h>

namespace zk {

namespace {

namespace fs = std::filesystem;

/// The path under which the library that holds `address` was loaded, which may be relative. Empty for the
/// executable, since some C libraries know only the name by which it was called.
std::string loadedName(const void* address) {
  Dl_info file{};
  Dl_info executable{};
  if (dladdr(address, &file) == 0 || !file.dli_fname) return {};
  const auto* const header = reinterpret_cast<const void*>(getauxval(AT_PHDR));
  const bool isInExecutable = dladdr(header, &executable) != 0 && executable.dli_fbase == file.dli_fbase;
  return isInExecutable ? "" : file.dli_fname;
}

/// The absolute path, without links, of the file that the kernel has mapped at `address`.
std::string mappedFile(const void* address, std::error_code& failure) {
  failure.clear();
  const auto wanted = reinterpret_cast<std::uintptr_t>(address);
  const std::unique_ptr<FILE, int (*)(FILE*)> maps(std::fopen("/proc/self/maps", "re"), &std::fclose);
  if (!maps) {
    failure = {errno, std::generic_category()};
    return {};
  }
  char line[PATH_MAX + 128];
  while (std::fgets(line, sizeof(line), maps.get())) {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    // NOLINTNEXTLINE(cert-err34-c): the kernel writes only numbers that fit
    if (std::sscanf(line, "%" SCNxPTR "-%" SCNxPTR, &begin, &end) != 2) continue;
    if (wanted < begin || wanted >= end) continue;
    const char* const path = std::strchr(line, '/');
    return path ? std::string(path, std::strcspn(path, "\n")) : std::string();
  }
  if (std::ferror(maps.get())) failure = make_error_code(std::errc::io_error);
  return {};
}

/// The absolute form of `path`, which may be relative to the working directory; empty if no file is there.
std::string existingFile(const std::string& path, std::error_code& failure) {
  const fs::path absolute = fs::absolute(path, failure);
  return !failure && fs::exists(absolute, failure) ? absolute.string() : std::string();
}

/// The path by which the program was started.
std::string startedPath(std::error_code& failure) {
  const auto* const path = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
  return path ? existingFile(path, failure) : std::string();
}

}  // namespace

std::string fileHolding(const void* address, std::error_code& failure) {
  failure.clear();
  std::string loaded = loadedName(address);
  if (loaded.starts_with('/')) return loaded;
  // For the executable too: /proc/self/exe is the dynamic loader if that was started with the program as its argument.
  std::string mapped = mappedFile(address, failure);
  if (!mapped.empty() || isTemporary(failure)) return mapped;
  return loaded.empty() ? executablePath(failure) : existingFile(loaded, failure);
}

std::string executablePath(std::error_code& failure) {
  const fs::path path = fs::read_symlink("/proc/self/exe", failure);
  return failure && !isTemporary(failure) ? startedPath(failure) : path.string();
}

}  // namespace zk
