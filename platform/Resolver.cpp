#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/ServiceView.h>
#include <ZKStrings/platform/system/ThreadPointer.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <utility>

#include <cxxabi.h>

namespace zk {

namespace internal {

struct alignas(kCacheLine) Entry {
  Entry(const std::type_info& service, const std::optional<std::string>& given)
      : type(service), name(given) {}

  const std::type_info& type;
  const std::optional<std::string> name;

  std::atomic<std::uint64_t> generation{0};  // counts the changes of the registration
  std::mutex mutex{};
  std::shared_ptr<Registration> registration{};  // guarded by `mutex`
  std::recursive_mutex
      making{};  // held while a factory of the application scope runs; recursive, because the factory may resolve again
};

namespace {

/// Reports what is wrong with a service and stops the process.
[[noreturn]] void stop(const Entry& entry, const char* problem) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> readable(
      abi::__cxa_demangle(entry.type.name(), nullptr, nullptr, &status), &std::free);
  std::fprintf(stderr, "Resolver: the service %s%s%s%s %s\n", readable ? readable.get() : entry.type.name(),
               entry.name ? " named \"" : "", entry.name ? entry.name->c_str() : "", entry.name ? "\"" : "",
               problem);
  std::abort();
}

}  // namespace

Registration::Registration() = default;

Registration::~Registration() = default;

Service Registration::made(const Entry& entry) {
  Service service = make();
  if (!service) stop(entry, "has a factory that returned nothing");
  return service;
}

Service Registration::service(Entry& entry) {
  if (scope != ResolverScope::application) return made(entry);
  if (isKept_.load(std::memory_order_acquire)) return kept_;
  const std::lock_guard lock(entry.making);
  if (isKept_) return kept_;
  if (isBeingMade_) stop(entry, "is resolved by its own factory, directly or through others");
  isBeingMade_ = true;
  try {
    kept_ = made(entry);
  } catch (...) {
    isBeingMade_ = false;
    throw;
  }
  isKept_.store(true, std::memory_order_release);
  return kept_;
}

namespace {

using Key = std::pair<std::type_index, std::optional<std::string>>;

struct HashOfKey {
  std::size_t operator()(const Key& key) const {
    return std::hash<std::type_index>()(key.first) ^ std::hash<std::optional<std::string>>()(key.second);
  }
};

/// The current registration of `entry`. Stops the process if there is none.
std::shared_ptr<Registration> current(Entry& entry) {
  std::unique_lock lock(entry.mutex);
  std::shared_ptr<Registration> registration = entry.registration;
  lock.unlock();
  if (!registration)
    stop(entry, "is not registered; register it (for Language: assign Current::language) first");
  return registration;
}

}  // namespace

Entry& entryFor(const std::type_info& type, std::optional<std::string_view> name) {
  // Never destroyed: a service may be resolved in the last destructor of an app.
  static std::mutex& mutex = *new std::mutex;
  // Not ordered by type: on 32-bit ARM, GCC's order of types is inconsistent within one source file.
  static auto& entries = *new std::unordered_map<Key, Entry, HashOfKey>;
  const Key key(type, name);
  const std::lock_guard lock(mutex);
  return entries.try_emplace(key, type, key.second).first->second;
}

Service resolveFrom(Entry& entry) {
  return current(entry)->service(entry);
}

namespace {

// The services that this thread keeps. A plain pointer needs no construction, so reading it is cheap and safe at any
// time.
thread_local constinit Kept* keptByThread = nullptr;

void freeAllKept(void* first);

const ThreadPointer& firstKeptAtThreadEnd() {
  static const ThreadPointer& pointer = *new ThreadPointer(freeAllKept);
  return pointer;
}

void freeAllKept(void* first) {
  keptByThread = static_cast<Kept*>(first);  // some systems have reset it by now
  while (keptByThread) delete std::exchange(keptByThread, keptByThread->next);
  static_cast<void>(firstKeptAtThreadEnd().set(nullptr));  // needs no room
}

/// The place where this thread keeps the service of `entry`; null if it cannot keep any.
Kept* placeFor(const Entry& entry) {
  for (Kept* kept = keptByThread; kept; kept = kept->next) {
    if (kept->entry == &entry) return kept;
  }
  std::unique_ptr<Kept> kept(new Kept{&entry, nullptr, 0, 0, nullptr, keptByThread});
  if (!firstKeptAtThreadEnd().set(kept.get())) return nullptr;
  return keptByThread = kept.release();
}

}  // namespace

Hold::Hold(Entry& entry) : kept_(keptByThread) {
  const std::uint64_t generation = entry.generation.load(std::memory_order_acquire);
  for (; kept_; kept_ = kept_->next) {
    if (kept_->entry != &entry || kept_->generation != generation) continue;
    ++kept_->openViews;
    service_ = kept_->service;
    return;
  }
  resolve(entry, generation);
}

void Hold::resolve(Entry& entry, std::uint64_t generation) {
  const std::shared_ptr<Registration> registration = current(entry);
  owner_ = registration->service(entry);
  service_ = owner_.get();
  if (registration->scope != ResolverScope::application) return;
  Kept* const place = placeFor(entry);
  if (!place || place->openViews > 0) return;  // a view further up the stack still reads the older service
  kept_ = place;
  kept_->openViews = 1;
  kept_->service = service_;
  kept_->generation = generation;
  kept_->owner.swap(owner_);  // last, as releasing the older service may open a view
}

}  // namespace internal

ResolverOptions::ResolverOptions(internal::Entry& entry,
                                 std::shared_ptr<internal::Registration> registration) noexcept
    : entry_(entry), registration_(registration) {
  const std::lock_guard lock(entry.mutex);
  entry.registration.swap(registration);  // releases the replaced one after the lock
  entry.generation.fetch_add(1, std::memory_order_release);
}

ResolverOptions& ResolverOptions::scope(ResolverScope scope) {
  registration_->scope = scope;
  // Services that threads keep were kept under the old scope.
  entry_.generation.fetch_add(1, std::memory_order_release);
  return *this;
}

}  // namespace zk
