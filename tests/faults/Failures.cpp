#include <ZKStrings/tests/faults/Failures.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk::faults {

namespace {

Shortage current;
bool isShort = false;
bool hasFailed = false;
int callsBefore = 0;

}  // namespace

void begin(const Shortage& shortage, int before) {
  current = shortage;
  callsBefore = before;
  hasFailed = false;
  isShort = true;
}

bool end() {
  isShort = false;
  return hasFailed;
}

bool failsNow(Kind kind) {
  if (!isShort || kind != current.kind || callsBefore-- > 0) return false;
  hasFailed = true;
  isShort = current.lasts;
  callsBefore = 0;
  errno = current.number;
  return true;
}

namespace {

/// What the C library's function `name` gives, or `failure`.
template <class Result, class... Arguments>
Result callOrFail(const char* name, Result failure, Arguments... arguments) {
  if (failsNow(Kind::systemCall)) return failure;
  return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace

}  // namespace zk::faults

// These stand before the C library's, for all libraries of this program.
extern "C" {

using zk::faults::callOrFail;

int open(const char* path, int flags, ...) {
  return callOrFail("open", -1, path, flags);
}
FILE* fopen(const char* path, const char* mode) {
  return callOrFail<FILE*>("fopen", nullptr, path, mode);
}
DIR* opendir(const char* path) {
  return callOrFail<DIR*>("opendir", nullptr, path);
}
dirent* readdir(DIR* directory) {
  return callOrFail<dirent*>("readdir", nullptr, directory);
}
ssize_t read(int file, void* bytes, size_t size) {
  return callOrFail<ssize_t>("read", -1, file, bytes, size);
}
int fstat(int file, struct stat* status) noexcept {
  return callOrFail("fstat", -1, file, status);
}
int stat(const char* path, struct stat* status) noexcept {
  return callOrFail("stat", -1, path, status);
}
ssize_t readlink(const char* path, char* target, size_t size) noexcept {
  return callOrFail<ssize_t>("readlink", -1, path, target, size);
}
char* realpath(const char* path, char* resolved) noexcept {
  return callOrFail<char*>("realpath", nullptr, path, resolved);
}

}  // extern "C"
