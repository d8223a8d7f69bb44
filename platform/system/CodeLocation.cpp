#include <ZKStrings/platform/system/CodeLocation.h>
#include <ZKStrings/platform/system/Failure.h>

#include <algorithm>
#include <cinttypes>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

#include <link.h>
#include <sys/auxv.h>

namespace zk {

namespace {

namespace fs = std::filesystem;

bool holds(const dl_phdr_info& file, std::uintptr_t address) {
  const std::span segments(file.dlpi_phdr, file.dlpi_phnum);
  return std::any_of(segments.begin(), segments.end(), [&](const auto& segment) {
    return segment.p_type == PT_LOAD && address - (file.dlpi_addr + segment.p_vaddr) < segment.p_memsz;
  });
}

/// What the dynamic loader calls the file that holds `address`: the path under which it was loaded, which may
/// be relative, and nothing for the executable, whose name is with some C libraries only what it was called by.
std::string loadedName(const void* address) {
  struct Search {
    std::uintptr_t address;
    const char* name;
  };
  Search search{reinterpret_cast<std::uintptr_t>(address), ""};
  const auto look = [](dl_phdr_info* file, std::size_t, void* data) {
    Search& wanted = *static_cast<Search*>(data);
    if (!holds(*file, wanted.address)) return 0;
    const bool isExecutable = reinterpret_cast<std::uintptr_t>(file->dlpi_phdr) == getauxval(AT_PHDR);
    if (!isExecutable) wanted.name = file->dlpi_name;
    return 1;
  };
  dl_iterate_phdr(look, &search);
  return search.name;
}

struct Closer {
  void operator()(FILE* file) const { std::fclose(file); }
};

/// The path that the kernel spells as `spelling`: \012 stands for a line break, and for itself.
std::string pathSpelled(std::string spelling) {
  constexpr std::string_view kLineBreak = "\\012";
  std::error_code notThere;
  std::size_t at = spelling.find(kLineBreak);
  if (at == std::string::npos || fs::exists(spelling, notThere)) return spelling;
  for (; at != std::string::npos; at = spelling.find(kLineBreak, at))
    spelling.replace(at, kLineBreak.size(), "\n");
  return spelling;
}

/// The file that the kernel has mapped at `address`, always by its absolute path without links.
std::string mappedFile(const void* address, std::error_code& failure) {
  failure.clear();
  const auto wanted = reinterpret_cast<std::uintptr_t>(address);
  const std::unique_ptr<FILE, Closer> maps(std::fopen("/proc/self/maps", "re"));
  if (!maps) {
    failure = lastFailure();
    return {};
  }
  char line[PATH_MAX + 128];
  while (std::fgets(line, sizeof(line), maps.get())) {
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    // NOLINTNEXTLINE(cert-err34-c): the kernel writes no number that does not fit
    if (std::sscanf(line, "%" SCNxPTR "-%" SCNxPTR, &begin, &end) != 2) continue;
    if (wanted < begin || wanted >= end) continue;
    const char* const path = std::strchr(line, '/');
    return path ? pathSpelled({path, std::strcspn(path, "\n")}) : std::string();
  }
  if (std::ferror(maps.get())) failure = make_error_code(std::errc::io_error);
  return {};
}

/// `path`, if need be from the working directory on; empty when no file is there.
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
  // The executable is asked for here too: /proc/self/exe is not always it, but the dynamic loader when that
  // was started with the program as its argument.
  std::string mapped = mappedFile(address, failure);
  if (!mapped.empty() || isPassing(failure)) return mapped;
  return loaded.empty() ? executablePath(failure) : existingFile(loaded, failure);
}

std::string executablePath(std::error_code& failure) {
  const fs::path path = fs::read_symlink("/proc/self/exe", failure);
  return failure && !isPassing(failure) ? startedPath(failure) : path.string();
}

}  // namespace zk
