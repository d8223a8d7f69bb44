#include <ZKStrings/benchmarks/Allocations.h>

#include <cstddef>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

thread_local constinit std::size_t allocations = 0;
thread_local constinit std::ptrdiff_t held = 0;

void* counted(void* memory) {
  if (!memory) throw std::bad_alloc();
  ++allocations;
  held += static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
  return memory;
}

}  // namespace

void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto unit = static_cast<std::size_t>(alignment);
  return counted(std::aligned_alloc(unit, (size + unit - 1) / unit * unit));
}

void* operator new(std::size_t size) {
  return counted(std::malloc(size));
}

void operator delete(void* memory) noexcept {
  held -= static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  operator delete(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
  operator delete(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  operator delete(memory);
}

namespace zk::benchmarks {

std::size_t allocationsByThread() {
  return allocations;
}

std::size_t bytesHeldByThread() {
  return static_cast<std::size_t>(held);
}

}  // namespace zk::benchmarks
