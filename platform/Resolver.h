#pragma once

#ifndef __cpp_rtti
#error "Resolver.h needs RTTI: compile without -fno-rtti, or include the other headers by themselves"
#endif

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/Registration.h>

#include <memory>
#include <optional>
#include <string_view>
#include <typeinfo>
#include <utility>

namespace zk {

/// How long the registry keeps what a factory gave.
enum class ResolverScope {
  everyResolve,  ///< not at all: each resolve calls the factory
  application,   ///< for the rest of the process: the first resolve calls the factory, once per registration
};

/// The options of one registration, as `Resolver::register_` gives them.
class ZK_EXPORT ResolverOptions {
 public:
  /// Sets how long what the factory gives is kept. Until this is called, a registration has `everyResolve`,
  /// also for another thread that resolves between the two calls.
  ResolverOptions& scope(ResolverScope scope);

 private:
  friend ResolverOptions registry::registerIn(registry::Entry&,
                                              std::shared_ptr<registry::Registration>) noexcept;
  ResolverOptions(registry::Entry& entry, std::shared_ptr<registry::Registration> registration) noexcept;

  registry::Entry& entry_;
  std::shared_ptr<registry::Registration> registration_;
};

/// The app-wide service registry: who needs a service asks for it by its type and, where there are several,
/// by a name.
///
///     zk::Resolver::register_<Theme>([] { return Theme::dark(); }).scope(zk::ResolverScope::application);
///     Theme theme = zk::Resolver::resolve<Theme>();
///
/// Any thread may register and resolve at any time. A registration replaces the earlier one of its type and
/// name for all later resolves. Factories run without any lock of the registry's held, so a factory may
/// register and resolve other services; one that is called at every resolve may be called by several threads
/// at once.
///
/// Programming errors stop the process after one line on standard error: resolving what is not registered, a
/// factory that gives nothing, and factories of the application scope that need each other's services in a
/// circle, on one thread or on several.
///
/// A factory and the types that it gives belong to the program or library that registered them: a plug-in
/// that registered one must stay loaded. After a `fork`, the child may use the registry if no other thread
/// of the parent was using it at that moment.
class ZK_EXPORT Resolver {
 public:
  /// Registers `factory`, a function without arguments that gives a `Service` or an optional one, for the
  /// type `Service` and `name`. The factory is moved, never copied. No name is a name of its own, different
  /// from the empty text.
  template <class Service, class Make>
  static ResolverOptions register_(Make factory, std::optional<std::string_view> name = std::nullopt) {
    using Registration = registry::RegistrationOf<Service, Make>;
    return registry::registerIn(registry::entryFor(typeid(Service), name),
                                std::make_shared<Registration>(std::move(factory)));
  }

  /// A copy of the service registered for the type `Service` and `name`. There are no arguments for the
  /// factory: the application scope could heed only those of whoever happens to resolve first. What differs
  /// from one resolve to the next belongs into the name, or into a function that the service offers.
  template <class Service>
  [[nodiscard]] static Service resolve(std::optional<std::string_view> name = std::nullopt) {
    const registry::Service service = registry::resolveFrom(registry::entryFor(typeid(Service), name));
    return *static_cast<const Service*>(service.get());
  }
};

}  // namespace zk
