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

/// The size of the block that the module has just freed, to make sure that ICU has memory for its first use. ICU's
/// next allocations come from that block.
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

// These replace the functions of the C library, for all libraries of this program.
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
