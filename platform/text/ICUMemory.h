#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

namespace zk {

/// To be called before a step for which ICU allocates once in the life of the process. When memory is short
/// then, ICU remembers for good that the step failed; so this asks for more memory than such a step takes,
/// gives it back, and throws `std::bad_alloc` when there is none, so that a later call finds ICU unharmed.
inline void requireMemoryForICU() {
  constexpr std::size_t kPlenty = std::size_t{64} * 1024;
  // From malloc, like ICU's; volatile, since compilers otherwise leave out what is only freed.
  void* const volatile memory = std::malloc(kPlenty);
  if (!memory) throw std::bad_alloc();
  std::free(memory);
}

}  // namespace zk
