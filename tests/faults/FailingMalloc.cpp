#include <ZKStrings/tests/faults/Failures.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <dlfcn.h>
#include <malloc.h>

extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* memory, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* memory) noexcept;
}

namespace {

/// What is known to be free: the block by which the module makes sure of memory for ICU, which never recovers from
/// a shortage in the midst of its first use. What ICU allocates next is had from it.
std::size_t room = 0;

bool isICU(const void* caller) {
  Dl_info info{};
  return dladdr(caller, &info) != 0 && std::strstr(info.dli_fname, "libicu") != nullptr;
}

bool failsNow(std::size_t size, const void* caller) {
  const bool hasRoom = room >= size && zk::faults::isRoomLeft() && isICU(caller);
  room -= std::min(size, room);
  return !hasRoom && zk::faults::failsNow(zk::faults::Kind::allocation);
}

}  // namespace

// These take the place of the C library's, for all libraries of this program.
extern "C" {

void* malloc(std::size_t size) noexcept {
  return failsNow(size, __builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  return failsNow(count * size, __builtin_return_address(0)) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) noexcept {
  return failsNow(size, __builtin_return_address(0)) ? nullptr : __libc_realloc(memory, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return failsNow(size, __builtin_return_address(0)) ? nullptr : __libc_memalign(alignment, size);
}
void free(void* memory) noexcept {
  constexpr std::size_t kRoom = 64 * 1024;
  constexpr std::size_t kPadding = 32;
  const std::size_t size = malloc_usable_size(memory);
  if (size >= kRoom && size < kRoom + kPadding) room = kRoom;
  __libc_free(memory);
}

}  // extern "C"
