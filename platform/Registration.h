#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Export.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string_view>
#include <typeinfo>
#include <utility>

// What the templates of Resolver.h need. An app calls `Resolver`, and nothing of this.

namespace zk {

enum class ResolverScope;
class ResolverOptions;

namespace registry {

/// A type and a name, with the registration that is in force for them. Entries live as long as the process.
struct Entry;

/// A thread, as one that runs factories.
struct Maker;

using Service = std::shared_ptr<const void>;

/// A factory, the scope in which it is used, and the service that the application scope keeps.
class ZK_EXPORT Registration {
 public:
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
  virtual ~Registration();

  void setScope(ResolverScope scope) { scope_ = scope; }
  [[nodiscard]] ResolverScope scope() const { return scope_; }

  /// What the scope says: a new service, or the one that is kept. Stops the process when there is none;
  /// `entry`, which the registration belongs to, is named then.
  [[nodiscard]] Service service(const Entry& entry);

 protected:
  Registration();

 private:
  /// What the factory gives; null for nothing.
  [[nodiscard]] virtual Service make() = 0;
  [[nodiscard]] Service made(const Entry& entry);
  [[nodiscard]] Service keptOrMade(const Entry& entry);
  [[nodiscard]] bool isAwaitedBy(const Maker& thread) const;

  std::atomic<ResolverScope> scope_;
  std::atomic<bool> isKept_{false};
  Service kept_{};                // written once, before `isKept_` is set
  const Maker* maker_ = nullptr;  // the thread that is making what will be kept
};

/// The registration of a factory of the type `Make`.
template <class Type, class Make>
class RegistrationOf final : public Registration {
 public:
  explicit RegistrationOf(Make factory) : factory_(std::move(factory)) {}

  /// The factory, which may be changed as long as it is not in force.
  [[nodiscard]] Make& factory() { return factory_; }

 private:
  Service make() override {
    std::optional<Type> service = factory_();
    if (!service) return nullptr;
    return std::allocate_shared<const Type>(CacheLineAllocator<Type>(), *std::move(service));
  }

  Make factory_;
};

[[nodiscard]] ZK_EXPORT Entry& entryFor(const std::type_info& type, std::optional<std::string_view> name);

/// Puts `registration` in force. Allocates nothing, and does not throw.
ZK_EXPORT ResolverOptions registerIn(Entry& entry, std::shared_ptr<Registration> registration) noexcept;

[[nodiscard]] ZK_EXPORT Service resolveFrom(Entry& entry);

}  // namespace registry

}  // namespace zk
