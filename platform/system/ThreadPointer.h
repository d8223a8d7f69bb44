#pragma once

namespace zk {

/// A pointer that each thread sets for itself. `free` receives it when the thread ends, even if it was set very late,
/// or by `free` itself. The object is never destroyed.
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
