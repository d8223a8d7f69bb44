#pragma once

#include <pthread.h>

namespace zk {

/// A pointer that each thread sets for itself. `free` receives it when the thread ends, even if it was set very late,
/// or by `free` itself. The object is never destroyed.
// Not thread_local with a destructor: without memory, registering that destructor ends the process.
class ThreadPointer {
 public:
  explicit ThreadPointer(void (*free)(void*)) : hasKey_(pthread_key_create(&key_, free) == 0) {}

  /// This thread's pointer; null if it has set none.
  [[nodiscard]] void* get() const { return hasKey_ ? pthread_getspecific(key_) : nullptr; }
  /// Sets this thread's pointer. False if the system has no room for it.
  [[nodiscard]] bool set(void* pointer) const { return hasKey_ && pthread_setspecific(key_, pointer) == 0; }

 private:
  pthread_key_t key_{};
  bool hasKey_;
};

}  // namespace zk
