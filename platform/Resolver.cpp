#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/registry/Entry.h>

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <typeindex>
#include <unordered_map>

#include <cxxabi.h>

namespace zk {

namespace registry {

/// What one thread is doing as a runner of factories; guarded by the one lock of all makers.
struct Maker {
  const Registration* waitsFor = nullptr;  // what another thread is making for it
};

namespace {

thread_local constinit Maker thisThread;

struct Makers {
  std::mutex mutex{};
  std::condition_variable oneIsDone{};
};

Makers& makers() {
  static auto& makers = *new Makers;  // never destroyed: a service may be asked for as late as anyone likes
  return makers;
}

/// Says what is wrong with a service on standard error and stops the process.
[[noreturn]] void stop(const Entry& entry, const char* fault) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> readable(
      abi::__cxa_demangle(entry.type.name(), nullptr, nullptr, &status), &std::free);
  std::fprintf(stderr, "Resolver: the service %s%s%s%s %s\n", readable ? readable.get() : entry.type.name(),
               entry.name ? " named \"" : "", entry.name ? entry.name->c_str() : "", entry.name ? "\"" : "",
               fault);
  std::abort();
}

}  // namespace

Registration::Registration() : scope_(ResolverScope::everyResolve) {
}

Registration::~Registration() = default;

Service Registration::service(const Entry& entry) {
  return scope_ == ResolverScope::application ? keptOrMade(entry) : made(entry);
}

Service Registration::made(const Entry& entry) {
  Service service = make();
  if (!service) stop(entry, "has a factory that gives nothing");
  return service;
}

/// Makes the service at the first call, and gives the same one ever after. A thread that comes meanwhile
/// waits.
Service Registration::keptOrMade(const Entry& entry) {
  if (isKept_.load(std::memory_order_acquire)) return kept_;
  std::unique_lock lock(makers().mutex);
  while (maker_) {
    if (isAwaitedBy(thisThread)) stop(entry, "is resolved by its own factory, directly or through others");
    thisThread.waitsFor = this;
    makers().oneIsDone.wait(lock);
    thisThread.waitsFor = nullptr;
  }
  if (isKept_) return kept_;

  maker_ = &thisThread;
  lock.unlock();
  const auto done = [&](void*) {
    const std::lock_guard again(makers().mutex);
    maker_ = nullptr;
    makers().oneIsDone.notify_all();
  };
  const std::unique_ptr<void, decltype(done)> afterwards(this, done);  // also when the factory throws
  kept_ = made(entry);
  isKept_.store(true, std::memory_order_release);
  return kept_;
}

/// Whether the making of this registration's service has to wait for `thread`: because that is its maker, or
/// because its maker waits for another that has to.
bool Registration::isAwaitedBy(const Maker& thread) const {
  for (const Registration* next = this; next && next->maker_; next = next->maker_->waitsFor) {
    if (next->maker_ == &thread) return true;
  }
  return false;
}

namespace {

using Key = std::pair<std::type_index, std::optional<std::string>>;

struct HashOfKey {
  std::size_t operator()(const Key& key) const {
    return std::hash<std::type_index>()(key.first) ^ std::hash<std::optional<std::string>>()(key.second);
  }
};

}  // namespace

Entry& entryFor(const std::type_info& type, std::optional<std::string_view> name) {
  static std::mutex& mutex = *new std::mutex;  // never destroyed, as above
  // Not in an order of types: on 32-bit ARM, GCC's puts types of one source file before and behind others at once.
  static auto& entries = *new std::unordered_map<Key, Entry, HashOfKey>;
  const Key key(type, name);
  const std::lock_guard lock(mutex);
  return entries.try_emplace(key, type, key.second).first->second;
}

ResolverOptions registerIn(Entry& entry, std::shared_ptr<Registration> registration) noexcept {
  std::shared_ptr<Registration> replaced = registration;  // released after the lock
  const std::lock_guard lock(entry.mutex);
  entry.registration.swap(replaced);
  entry.generation.fetch_add(1, std::memory_order_release);
  return ResolverOptions(entry, std::move(registration));
}

Resolved resolved(Entry& entry) {
  std::unique_lock lock(entry.mutex);
  const std::shared_ptr<Registration> registration = entry.registration;
  const std::uint64_t generation = entry.generation.load(std::memory_order_relaxed);
  lock.unlock();
  if (!registration)
    stop(entry, "is not registered; register it (for Language: assign Current::language) first");
  const ResolverScope scope = registration->scope();
  return {registration->service(entry), generation, scope};
}

Service resolveFrom(Entry& entry) {
  return resolved(entry).service;
}

}  // namespace registry

ResolverOptions::ResolverOptions(registry::Entry& entry,
                                 std::shared_ptr<registry::Registration> registration) noexcept
    : entry_(entry), registration_(std::move(registration)) {
}

ResolverOptions& ResolverOptions::scope(ResolverScope scope) {
  registration_->setScope(scope);
  // What threads keep was kept under the old scope.
  entry_.generation.fetch_add(1, std::memory_order_release);
  return *this;
}

}  // namespace zk
