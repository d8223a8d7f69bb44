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
  static std::uint64_t nextGeneration() {
    static constinit std::atomic<std::uint64_t> last{0};
    return ++last;
  }

  const std::type_info& type;
  const std::optional<std::string> name;

  /// Differs between entries, and changes whenever the registration changes.
  std::atomic<std::uint64_t> generation = nextGeneration();
  std::mutex mutex{};
  std::shared_ptr<Registration> registration{};  // guarded by `mutex`
  /// Held while a factory with application scope runs. Recursive, because the factory may resolve again.
  std::recursive_mutex making{};
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

using Key = std::pair<std::type_index, std::optional<std::string>>;

struct HashOfKey {
  std::size_t operator()(const Key& key) const {
    return std::hash<std::type_index>()(key.first) ^ std::hash<std::optional<std::string>>()(key.second);
  }
};

/// The current registration of `entry`. Stops the process if there is none.
std::shared_ptr<Registration> current(Entry& entry) {
  const std::lock_guard lock(entry.mutex);
  if (!entry.registration)
    stop(entry, "is not registered; register it (for Language: assign Current::language) first");
  return entry.registration;
}

// The service that this thread keeps. A plain pointer needs no construction, so reading it is cheap and safe at any time.
thread_local constinit Kept* keptByThread = nullptr;

void freeKept(void* kept) {
  keptByThread = nullptr;  // the service may be viewed again while it is destroyed
  delete static_cast<Kept*>(kept);
}

/// The place where this thread keeps a service; null if it cannot keep any.
Kept* placeOfThread() {
  static const ThreadPointer& freedAtThreadEnd = *new ThreadPointer(freeKept);
  if (keptByThread) return keptByThread;
  auto kept = std::make_unique<Kept>();
  if (!freedAtThreadEnd.set(kept.get())) return nullptr;
  return keptByThread = kept.release();
}

}  // namespace

Service Registration::service(Entry& entry) {
  const auto made = [&] {
    Service service = make();
    if (!service) stop(entry, "has a factory that returned nothing");
    return service;
  };
  if (scope != ResolverScope::application) return made();
  const std::lock_guard lock(entry.making);
  if (kept_) return kept_;
  if (isBeingMade_) stop(entry, "is resolved by its own factory, directly or through others");
  isBeingMade_ = true;
  try {
    kept_ = made();
  } catch (...) {
    isBeingMade_ = false;
    throw;
  }
  return kept_;
}

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

Hold::Hold(Entry& entry) {
  const std::uint64_t generation = entry.generation.load(std::memory_order_acquire);
  if (keptByThread && keptByThread->generation == generation) {
    kept_ = keptByThread;
    ++kept_->openViews;
  } else {
    resolve(entry, generation);
  }
}

void Hold::resolve(Entry& entry, std::uint64_t generation) {
  const std::shared_ptr<Registration> registration = current(entry);
  owned_ = registration->service(entry);
  if (registration->scope != ResolverScope::application) return;
  Kept* const place = placeOfThread();
  if (!place || place->openViews > 0) return;  // a view further up the stack still reads the older service
  kept_ = place;
  kept_->openViews = 1;
  kept_->generation = generation;
  kept_->service.swap(owned_);  // the older service ends with this view
}

}  // namespace internal

ResolverOptions::ResolverOptions(internal::Entry& entry,
                                 std::shared_ptr<internal::Registration> registration) noexcept
    : entry_(entry), registration_(registration) {
  const std::lock_guard lock(entry.mutex);
  entry.registration.swap(registration);  // so the replaced one is destroyed after the unlock
  entry.generation.store(internal::Entry::nextGeneration(), std::memory_order_release);
}

ResolverOptions& ResolverOptions::scope(ResolverScope scope) {
  registration_->scope = scope;
  // Services that threads keep were kept under the old scope.
  entry_.generation.store(internal::Entry::nextGeneration(), std::memory_order_release);
  return *this;
}

}  // namespace zk
