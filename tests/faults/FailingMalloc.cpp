#include <ZKStrings/tests/faults/Failures.h>

#include <algorithm>
#include <cstddef>

#include <malloc.h>

extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* memory, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* memory) noexcept;
}

namespace {

/// What is known to be free: a large block that was given back a moment ago. ICU never recovers from a shortage in
/// the midst of its first use, for which the module therefore makes sure of such a block.
std::size_t room = 0;

bool failsNow(std::size_t size) {
  const bool hasRoom = size <= room;
  room -= std::min(size, room);
  return !hasRoom && zk::faults::failsNow(zk::faults::Kind::allocation);
}

}  // namespace

// These take the place of the C library's, for all libraries of this program.
extern "C" {

void* malloc(std::size_t size) noexcept {
  return failsNow(size) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  return failsNow(count * size) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) noexcept {
  return failsNow(size) ? nullptr : __libc_realloc(memory, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return failsNow(size) ? nullptr : __libc_memalign(alignment, size);
}
void free(void* memory) noexcept {
  constexpr std::size_t kLarge = 64 * 1024;
  const std::size_t size = malloc_usable_size(memory);
  if (size >= kLarge) room = size;
  __libc_free(memory);
}

}  // extern "C"
