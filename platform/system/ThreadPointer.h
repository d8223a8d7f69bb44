#pragma once

namespace zk {

/// A pointer that each thread sets for itself. `free` receives it when the thread ends, however late it was set
/// and even if `free` causes it to be set again. Never destroyed, like the system's own record of it.
class ThreadPointer {
 public:
  explicit ThreadPointer(void (*free)(void*));

  /// This thread's pointer; null if it has set none.
  [[nodiscard]] void* get() const;
  /// Sets this thread's pointer. False if the system has no room for it.
  [[nodiscard]] bool set(void* pointer) const;

 private:
  unsigned key_ = 0;
  bool hasKey_;
};

}  // namespace zk
