#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>

namespace zk {

/// How long the registry keeps what a factory gave.
enum class ResolverScope {
  everyResolve,  ///< not at all: each resolve calls the factory
  application,   ///< for the rest of the process: the first resolve calls the factory, once per registration
};

namespace registry {
struct Registration;
struct Entry;
using Service = std::shared_ptr<const void>;
using Factory = std::function<Service()>;
}  // namespace registry

/// The options of one registration, as `Resolver::register_` gives them.
class ZK_EXPORT ResolverOptions {
 public:
  /// Sets how long what the factory gives is kept; without this call a registration has `everyResolve`.
  ResolverOptions& scope(ResolverScope scope);

 private:
  friend class Resolver;
  ResolverOptions(registry::Entry& entry, std::shared_ptr<registry::Registration> registration);
  registry::Entry* entry_;
  std::shared_ptr<registry::Registration> registration_;
};

/// The app-wide service registry: who needs a service asks for it by its type and, where there are several,
/// by a name.
///
///     zk::Resolver::register_<Theme>([] { return Theme::dark(); }).scope(zk::ResolverScope::application);
///     Theme theme = zk::Resolver::resolve<Theme>();
///
/// Any thread may register and resolve at any time. A registration replaces the earlier one of its type and
/// name for all later resolves. Factories run without any lock of the registry's held but the one of their
/// own registration, so a factory may register and resolve other services; one that is called at every
/// resolve may be called by several threads at once.
///
/// Programming errors stop the process after one line on standard error: resolving what is not registered, a
/// factory that gives nothing, and an application-scoped factory that resolves itself.
class ZK_EXPORT Resolver {
 public:
  template <class Service>
  class View;

  /// Registers `factory`, a function without arguments that gives a `Service` or an optional one, for the
  /// type `Service` and `name`. No name is a name of its own, different from the empty text.
  template <class Service, class Make>
  static ResolverOptions register_(Make factory, std::optional<std::string_view> name = std::nullopt);

  /// A copy of the service registered for the type `Service` and `name`.
  template <class Service>
  [[nodiscard]] static Service resolve(std::optional<std::string_view> name = std::nullopt);

  /// One resolve of the unnamed service without copying it, for code that reads a little of a value very
  /// often. It takes no lock and writes to no memory that threads share, as long as nothing new has been
  /// registered. The price: each thread that has viewed a service keeps the value that it saw until its next
  /// view of that service, or until it ends.
  template <class Service>
  [[nodiscard]] static View<Service> view();

 private:
  static registry::Entry& entry(const std::type_info& type, std::optional<std::string_view> name);
  static ResolverOptions registerIn(registry::Entry& entry, registry::Factory factory);
  static registry::Service resolveFrom(registry::Entry& entry);
};

namespace registry {

/// What one thread holds of one entry, so that viewing it again costs no reference count. It fills the cache
/// lines that it stands on: its thread writes to it at every view, and no other thread may have to wait for
/// that.
struct alignas(128) Kept {
  const Entry* entry;
  const void* service;
  std::uint64_t generation;
  unsigned views;
  Service owner;
  Kept* next;
};

/// A view's hold on a service: on what the thread keeps, or else on its own reference.
struct ZK_EXPORT Hold {
  explicit Hold(Entry& entry);
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  ~Hold() {
    if (kept) --kept->views;
  }
  const void* service;
  Kept* kept;
  Service owner;
};

}  // namespace registry

/// A service as `Resolver::view` gives it: valid as long as the view, to be used on the thread that made it.
template <class Service>
class Resolver::View {
 public:
  const Service& operator*() const { return *static_cast<const Service*>(hold_.service); }
  const Service* operator->() const { return &**this; }

 private:
  friend class Resolver;
  explicit View(registry::Entry& entry) : hold_(entry) {}
  registry::Hold hold_;
};

template <class Service, class Make>
ResolverOptions Resolver::register_(Make factory, std::optional<std::string_view> name) {
  const auto make = [factory = std::move(factory)]() mutable -> registry::Service {
    std::optional<Service> service = factory();
    if (!service) return nullptr;
    return std::allocate_shared<const Service>(CacheLineAllocator<Service>(), *std::move(service));
  };
  return registerIn(entry(typeid(Service), name), make);
}

template <class Service>
Service Resolver::resolve(std::optional<std::string_view> name) {
  return *static_cast<const Service*>(resolveFrom(entry(typeid(Service), name)).get());
}

template <class Service>
Resolver::View<Service> Resolver::view() {
  static registry::Entry& unnamed = entry(typeid(Service), std::nullopt);
  return View<Service>(unnamed);
}

}  // namespace zk
