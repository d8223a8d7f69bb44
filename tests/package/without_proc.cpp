// Preloaded into a program, simulates a system without /proc. With WITHOUT_NAMES in the environment, the program
// cannot find its files in any other way either. Searching the root of the file system for resources ends the
// program.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <elf.h>
#include <sys/auxv.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isHidden(const char* path) {
  if (std::strncmp(path, "/proc/", 6) != 0) return false;
  errno = ENOENT;
  return true;
}

bool hasNoNames() {
  return std::getenv("WITHOUT_NAMES") != nullptr;
}

template <class Function>
Function* real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
  return isHidden(path) ? -1 : real<ssize_t(const char*, char*, size_t)>("readlink")(path, target, size);
}
FILE* fopen(const char* path, const char* mode) {
  return isHidden(path) ? nullptr : real<FILE*(const char*, const char*)>("fopen")(path, mode);
}
int stat(const char* path, struct stat* status) noexcept {
  if (hasNoNames() && std::strcmp(path, "/share/ZKStrings") == 0) {
    std::puts("looked at the root");
    std::exit(0);
  }
  return real<int(const char*, struct stat*)>("stat")(path, status);
}
unsigned long getauxval(unsigned long type) noexcept {
  return hasNoNames() && type == AT_EXECFN ? 0 : real<unsigned long(unsigned long)>("getauxval")(type);
}

}  // extern "C"
