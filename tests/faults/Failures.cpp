#include <ZKStrings/tests/faults/Failures.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk::faults {

namespace {

Failure current;
bool isOn = false;
bool hasFailed = false;
bool hasRoom = true;
int callsBefore = 0;
FILE* broken = nullptr;

}  // namespace

void begin(const Failure& failure, int before) {
  current = failure;
  callsBefore = before;
  hasFailed = false;
  broken = nullptr;
  isOn = true;
}

bool end() {
  isOn = false;
  return hasFailed;
}

bool failsNow(Kind kind) {
  if (!isOn || kind != current.kind || callsBefore-- > 0) return false;
  hasFailed = true;
  isOn = current.lasts;
  callsBefore = 0;
  errno = current.number;
  return true;
}

void leaveNoRoom() {
  hasRoom = false;
}

bool isRoomLeft() {
  return hasRoom;
}

namespace {

/// Returns the result of the C library's function `name`.
template <class Result, class... Arguments>
Result call(const char* name, Arguments... arguments) {
  return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

/// Returns the result of the C library's function `name`, or `failure` if the call has to fail.
template <class Result, class... Arguments>
Result callOrFail(const char* name, Result failure, Arguments... arguments) {
  return failsNow(Kind::systemCall) ? failure : call<Result>(name, arguments...);
}

}  // namespace

}  // namespace zk::faults

using zk::faults::call;
using zk::faults::callOrFail;

// These replace the functions of the C library, for all libraries of this program.
extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  return callOrFail("open", -1, path, flags, mode);
}
int openat(int directory, const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  return callOrFail("openat", -1, directory, path, flags, mode);
}
FILE* fopen(const char* path, const char* mode) {
  return callOrFail<FILE*>("fopen", nullptr, path, mode);
}
char* fgets(char* line, int size, FILE* stream) {
  if (zk::faults::failsNow(zk::faults::Kind::systemCall)) {
    zk::faults::broken = stream;
    return nullptr;
  }
  return call<char*>("fgets", line, size, stream);
}
int ferror(FILE* stream) noexcept {
  return stream == zk::faults::broken ? 1 : call<int>("ferror", stream);
}
DIR* opendir(const char* path) {
  return callOrFail<DIR*>("opendir", nullptr, path);
}
dirent* readdir(DIR* directory) {
  return callOrFail<dirent*>("readdir", nullptr, directory);
}
ssize_t read(int file, void* bytes, size_t size) {
  constexpr size_t kShort = 100;
  if (zk::faults::failsNow(zk::faults::Kind::shortRead)) size = std::min(size, kShort);
  return callOrFail<ssize_t>("read", -1, file, bytes, size);
}
int fstat(int file, struct stat* status) noexcept {
  return callOrFail("fstat", -1, file, status);
}
int stat(const char* path, struct stat* status) noexcept {
  return callOrFail("stat", -1, path, status);
}
int lstat(const char* path, struct stat* status) noexcept {
  return callOrFail("lstat", -1, path, status);
}
ssize_t readlink(const char* path, char* target, size_t size) noexcept {
  return callOrFail<ssize_t>("readlink", -1, path, target, size);
}
char* realpath(const char* path, char* resolved) noexcept {
  return callOrFail<char*>("realpath", nullptr, path, resolved);
}
char* getcwd(char* path, size_t size) noexcept {
  return callOrFail<char*>("getcwd", nullptr, path, size);
}

}  // extern "C"
