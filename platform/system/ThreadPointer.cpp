#include <ZKStrings/platform/system/ThreadPointer.h>

#include <type_traits>

#include <pthread.h>

namespace zk {

// Not thread_local with a destructor: without memory, registering that destructor ends the process.

static_assert(std::is_same_v<pthread_key_t, unsigned>);

ThreadPointer::ThreadPointer(void (*free)(void*)) : hasKey_(pthread_key_create(&key_, free) == 0) {
}

void* ThreadPointer::get() const {
  return hasKey_ ? pthread_getspecific(key_) : nullptr;
}

bool ThreadPointer::set(void* pointer) const {
  return hasKey_ && pthread_setspecific(key_, pointer) == 0;
}

}  // namespace zk
