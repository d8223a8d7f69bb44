#include <ZKStrings/platform/system/CodeLocation.h>

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <dlfcn.h>
#include <link.h>

namespace zk {

namespace {

/// The file that the kernel has mapped at `address`, always by its absolute path. Slower than asking the
/// dynamic loader, which knows some files by the relative path under which they were loaded, and the
/// executable not at all.
std::string fileMappedAt(std::uintptr_t address) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    if (std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR, &begin, &end) != 2) continue;
    if (address < begin || address >= end) continue;
    const std::size_t path = line.find('/');
    return path == std::string::npos ? std::string() : line.substr(path);
  }
  return {};
}

}  // namespace

std::string fileHolding(const void* address) {
  Dl_info info{};
  link_map* loaded = nullptr;
  void** const result = reinterpret_cast<void**>(&loaded);
  if (dladdr1(address, &info, result, RTLD_DL_LINKMAP) != 0 && loaded->l_name[0] == '/')
    return loaded->l_name;
  return fileMappedAt(reinterpret_cast<std::uintptr_t>(address));
}

std::string executablePath() {
  std::error_code failure;
  return std::filesystem::read_symlink("/proc/self/exe", failure).string();
}

std::string directoryOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace zk
