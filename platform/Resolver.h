#pragma once

#ifndef __cpp_rtti
#error "Resolver.h needs RTTI: compile without -fno-rtti, or include the other headers by themselves"
#endif

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string_view>
#include <typeinfo>
#include <utility>

namespace zk {

/// How long the registry keeps a factory's result.
enum class ResolverScope {
  everyResolve,  ///< Not at all: each resolve calls the factory.
  application,   ///< Until the process ends: only the first resolve of a registration calls the factory.
};

namespace internal {

struct Entry;

using Service = std::shared_ptr<const void>;

/// A factory, its scope, and the service that the application scope keeps.
class ZK_EXPORT Registration {
 public:
  virtual ~Registration() = default;

  /// Returns a new service or the kept one, depending on the scope. `entry` is the entry that is being resolved.
  [[nodiscard]] Service service(Entry& entry);

  std::atomic<ResolverScope> scope{ResolverScope::everyResolve};

 private:
  /// Calls the factory. Returns null if the factory returned nothing.
  [[nodiscard]] virtual Service make() = 0;

  // Guarded by the entry's lock `making`.
  bool isBeingMade_ = false;
  Service kept_{};
};

template <class Type, class Make>
struct RegistrationOf final : Registration {
  explicit RegistrationOf(Make made) : factory(std::move(made)) {}
  Service make() override {
    std::optional<Type> service = factory();
    if (!service) return nullptr;
    return std::allocate_shared<const Type>(CacheLineAllocator<Type>(), *std::move(service));
  }

  Make factory;
};

/// Returns the entry for a type and a name. Entries live until the process ends.
[[nodiscard]] ZK_EXPORT Entry& entryFor(const std::type_info& type, std::optional<std::string_view> name);

[[nodiscard]] ZK_EXPORT Service resolveFrom(Entry& entry);

}  // namespace internal

/// The options of one registration, returned by `Resolver::register_`.
class ZK_EXPORT ResolverOptions {
 public:
  /// Sets how long the factory's result is kept. Until this call, the scope is `everyResolve`.
  ResolverOptions& scope(ResolverScope scope);

  /// For `Resolver::register_`: makes `registration` the current registration of `entry`. Allocates nothing.
  ResolverOptions(internal::Entry& entry, std::shared_ptr<internal::Registration> registration) noexcept;

 private:
  internal::Entry& entry_;
  std::shared_ptr<internal::Registration> registration_;
};

/// The app-wide service registry. A service is identified by its type and an optional name.
///
///     zk::Resolver::register_<Theme>([] { return Theme::dark(); }).scope(zk::ResolverScope::application);
///     Theme theme = zk::Resolver::resolve<Theme>();
///
/// Thread-safe. A new registration replaces the earlier one for the same type and name. A factory may
/// register and resolve other services. A factory with the scope `everyResolve` may run on several threads at once.
///
/// Stops the process, after one line on standard error, if the resolved service is not registered, if a factory returns
/// nothing, or if a factory with application scope needs its own service, directly or through other factories.
/// If several threads enter such a cycle at the same time, they may wait for each other forever.
///
/// A plug-in that registered a factory must stay loaded. After a `fork`, the child may use the registry only if no other
/// thread of the parent was using it at that moment.
class ZK_EXPORT Resolver {
 public:
  /// Registers `factory`, a function without arguments that returns a `Service` or a `std::optional<Service>`, for the
  /// type `Service` and `name`. Never copies the factory. Omitting the name is not the same as passing an empty one.
  template <class Service, class Make>
  static ResolverOptions register_(Make factory, std::optional<std::string_view> name = std::nullopt) {
    using Registration = internal::RegistrationOf<Service, Make>;
    return {internal::entryFor(typeid(Service), name), std::make_shared<Registration>(std::move(factory))};
  }

  /// Returns a copy of the service registered for the type `Service` and `name`.
  template <class Service>
  [[nodiscard]] static Service resolve(std::optional<std::string_view> name = std::nullopt) {
    const internal::Service service = internal::resolveFrom(internal::entryFor(typeid(Service), name));
    return *static_cast<const Service*>(service.get());
  }
};

}  // namespace zk
