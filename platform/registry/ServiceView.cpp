#include <ZKStrings/platform/registry/Entry.h>
#include <ZKStrings/platform/registry/ServiceView.h>

#include <memory>
#include <utility>

#include <pthread.h>

namespace zk::registry {

namespace {

// What this thread keeps. The pointer needs no construction, so that reading it is cheap and safe at any time.
thread_local constinit Kept* keptByThread = nullptr;

void freeAllKept(void*) {
  while (keptByThread) delete std::exchange(keptByThread, keptByThread->next);
}

/// Has this thread free what it keeps when it ends; false when the system has no room for that. The system's
/// own keys see to it even if the first view comes after the last thread_local destructor.
bool isFreedAtThreadEnd() {
  struct Key {
    pthread_key_t key;
    bool isThere;
  };
  static const Key end = [] {
    Key made{};
    made.isThere = pthread_key_create(&made.key, freeAllKept) == 0;
    return made;
  }();
  return end.isThere && pthread_setspecific(end.key, &keptByThread) == 0;
}

/// The place where this thread keeps the service of `entry`; null when it cannot keep any.
Kept* placeFor(const Entry& entry) {
  for (Kept* kept = keptByThread; kept; kept = kept->next) {
    if (kept->entry == &entry) return kept;
  }
  if (!isFreedAtThreadEnd()) return nullptr;
  keptByThread = new Kept{&entry, nullptr, 0, 0, nullptr, keptByThread};
  return keptByThread;
}

/// Brings what this thread keeps of `entry` up to date, and opens a view of it. `now` gets the service that
/// was kept before. Null when `now` cannot be kept: the scope says so, there is no place, or a view further up
/// the stack still reads the older service.
Kept* refreshed(const Entry& entry, Resolved& now) {
  if (now.scope != ResolverScope::application) return nullptr;
  Kept* const kept = placeFor(entry);
  if (!kept || kept->views > 0) return nullptr;
  kept->views = 1;
  kept->service = now.service.get();
  kept->generation = now.generation;
  kept->owner.swap(now.service);
  return kept;
}

}  // namespace

Hold::Hold(Entry& entry) : service_(nullptr), kept_(keptByThread) {
  const std::uint64_t generation = entry.generation.load(std::memory_order_acquire);
  for (; kept_; kept_ = kept_->next) {
    if (kept_->entry != &entry || kept_->generation != generation) continue;
    ++kept_->views;
    service_ = kept_->service;
    return;
  }
  Resolved now = resolved(entry);
  service_ = now.service.get();
  kept_ = refreshed(entry, now);
  if (!kept_) owner_ = std::move(now.service);
}

}  // namespace zk::registry
