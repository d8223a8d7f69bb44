#pragma once

#include <cstddef>
#include <new>

namespace zk::internal {

/// The unit in which processors move memory between their caches, in bytes.
inline constexpr std::size_t kCacheLine = 64;

/// Allocates whole cache lines, for objects that many threads read and none writes. If a thread wrote to something else on
/// the same line, all others would have to load the line again.
template <class Object>
struct CacheLineAllocator {
  using value_type = Object;

  CacheLineAllocator() = default;
  template <class Other>
  CacheLineAllocator(const CacheLineAllocator<Other>&) {}

  [[nodiscard]] Object* allocate(std::size_t count) {
    const std::size_t bytes = (count * sizeof(Object) + kCacheLine - 1) / kCacheLine * kCacheLine;
    return static_cast<Object*>(::operator new(bytes, kAlignment));
  }
  void deallocate(Object* objects, std::size_t) { ::operator delete(objects, kAlignment); }

  friend bool operator==(const CacheLineAllocator&, const CacheLineAllocator&) { return true; }

 private:
  static constexpr std::align_val_t kAlignment{alignof(Object) > kCacheLine ? alignof(Object) : kCacheLine};
};

}  // namespace zk::internal
