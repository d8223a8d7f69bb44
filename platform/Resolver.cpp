#include <ZKStrings/platform/Resolver.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <thread>
#include <typeindex>

#include <cxxabi.h>

namespace zk {

namespace registry {

struct Registration {
  explicit Registration(Factory made) : factory(std::move(made)) {}

  const Factory factory;
  std::atomic<ResolverScope> scope{ResolverScope::everyResolve};

  std::mutex making;                   // held while the application scope's factory runs
  std::atomic<std::thread::id> maker;  // the thread that runs it
  Service kept;                        // what it gave; guarded by `making`
};

/// One type and name. Entries are never removed, so references to them stay good.
struct alignas(kCacheLine) Entry {
  Entry(const std::type_info& service, std::optional<std::string> given)
      : type(service), name(std::move(given)) {}

  const std::type_info& type;
  const std::optional<std::string> name;

  std::atomic<std::uint64_t> generation{0};  // counts the changes of the registration
  std::mutex mutex;
  std::shared_ptr<Registration> registration;  // guarded by `mutex`
};

namespace {

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

Service make(const Entry& entry, const Registration& registration) {
  Service service = registration.factory();
  if (!service) stop(entry, "has a factory that gives nothing");
  return service;
}

/// The application scope: makes the service at the first call, and gives the same one ever after.
Service keptOrMade(const Entry& entry, Registration& registration) {
  if (registration.maker == std::this_thread::get_id()) stop(entry, "is resolved by its own factory");
  const std::lock_guard lock(registration.making);
  if (registration.kept) return registration.kept;
  registration.maker = std::this_thread::get_id();
  const auto done = [&](void*) { registration.maker = std::thread::id(); };
  const std::unique_ptr<void, decltype(done)> afterwards(&registration, done);
  registration.kept = make(entry, registration);
  return registration.kept;
}

struct Resolved {
  Service service;
  std::uint64_t generation;
  ResolverScope scope;
};

Resolved resolved(Entry& entry) {
  std::unique_lock lock(entry.mutex);
  const std::shared_ptr<Registration> registration = entry.registration;
  const std::uint64_t generation = entry.generation.load(std::memory_order_relaxed);
  lock.unlock();
  if (!registration)
    stop(entry, "is not registered; register it (for Language: assign Current::language) first");
  const ResolverScope scope = registration->scope;
  const bool keep = scope == ResolverScope::application;
  return {keep ? keptOrMade(entry, *registration) : make(entry, *registration), generation, scope};
}

// What this thread keeps. The pointer itself needs no construction, so that reading it is cheap and safe at
// any time, also after the thread's clean-up; only the clean-up object has a destructor.
thread_local constinit Kept* keptByThread = nullptr;
thread_local constinit bool threadIsEnding = false;

struct ThreadCleanUp {
  ~ThreadCleanUp() {
    threadIsEnding = true;
    while (keptByThread) delete std::exchange(keptByThread, keptByThread->next);
  }
};

/// The place where this thread keeps the service of `entry`; null when the thread is ending.
Kept* placeFor(const Entry& entry) {
  if (threadIsEnding) return nullptr;
  thread_local const ThreadCleanUp cleanUp;
  static_cast<void>(cleanUp);
  for (Kept* kept = keptByThread; kept; kept = kept->next) {
    if (kept->entry == &entry) return kept;
  }
  keptByThread = new Kept{&entry, nullptr, 0, 0, nullptr, keptByThread};
  return keptByThread;
}

/// Brings what this thread keeps of `entry` up to date. Null when it cannot be kept: the scope says so, the
/// thread is ending, or a view further up the stack still reads the older value.
Kept* refreshed(const Entry& entry, const Resolved& now) {
  if (now.scope != ResolverScope::application) return nullptr;
  Kept* kept = placeFor(entry);
  if (!kept || kept->views > 0) return nullptr;
  kept->owner = now.service;
  kept->service = now.service.get();
  kept->generation = now.generation;
  return kept;
}

}  // namespace

Hold::Hold(Entry& entry) {
  const std::uint64_t generation = entry.generation.load(std::memory_order_acquire);
  for (kept = keptByThread; kept; kept = kept->next) {
    if (kept->entry != &entry || kept->generation != generation) continue;
    ++kept->views;
    service = kept->service;
    return;
  }
  Resolved now = resolved(entry);
  kept = refreshed(entry, now);
  service = now.service.get();
  if (kept) {
    ++kept->views;
  } else {
    owner = std::move(now.service);
  }
}

}  // namespace registry

ResolverOptions::ResolverOptions(registry::Entry& entry, std::shared_ptr<registry::Registration> registration)
    : entry_(&entry), registration_(std::move(registration)) {
}

ResolverOptions& ResolverOptions::scope(ResolverScope scope) {
  registration_->scope = scope;
  entry_->generation.fetch_add(1,
                               std::memory_order_release);  // what threads keep was kept under the old scope
  return *this;
}

registry::Entry& Resolver::entry(const std::type_info& type, std::optional<std::string_view> name) {
  using Key = std::pair<std::type_index, std::optional<std::string>>;
  static std::mutex& mutex = *new std::mutex;  // never destroyed: a lookup may come as late as it likes
  static auto& entries = *new std::map<Key, registry::Entry>;
  const Key key(type, name);
  const std::lock_guard lock(mutex);
  return entries.try_emplace(key, type, key.second).first->second;
}

ResolverOptions Resolver::registerIn(registry::Entry& entry, registry::Factory factory) {
  auto registration = std::make_shared<registry::Registration>(std::move(factory));
  std::shared_ptr<registry::Registration> replaced = registration;  // released after the lock
  const std::lock_guard lock(entry.mutex);
  entry.registration.swap(replaced);
  entry.generation.fetch_add(1, std::memory_order_release);
  return ResolverOptions(entry, std::move(registration));
}

registry::Service Resolver::resolveFrom(registry::Entry& entry) {
  return registry::resolved(entry).service;
}

}  // namespace zk
