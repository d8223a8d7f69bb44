#pragma once

#include <ZKStrings/platform/Resolver.h>

#include <cstdint>
#include <optional>
#include <typeinfo>

namespace zk {

namespace internal {

/// The service that one thread keeps, so viewing it again changes no reference count. Has cache lines of its own, because
/// its thread writes to it.
struct alignas(128) Kept {
  Service service{};
  std::uint64_t generation = 0;  // of the service's entry, when the service was resolved
  unsigned openViews = 0;
};

/// Keeps a service alive: the one that the thread keeps, or else one that this object owns.
class Hold {
 public:
  explicit Hold(Entry& entry);
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  ~Hold() {
    if (kept_) --kept_->openViews;
  }
  [[nodiscard]] const void* service() const { return kept_ ? kept_->service.get() : owned_.get(); }

 private:
  /// Not inlined, to keep the common case short.
  [[gnu::noinline]] void resolve(Entry& entry, std::uint64_t generation);

  Kept* kept_ = nullptr;
  Service owned_{};
};

}  // namespace internal

/// Resolves the unnamed service of the type `Service` without copying it. While nothing new is registered, it takes no
/// lock and writes to no memory that threads share. In return, each thread keeps the last service that it viewed, until
/// it views another one or ends.
///
///     const ServiceView<Language> language;
///     read(language->preferredLanguages);
///
/// The service lives as long as the view. Requires: the view is used only on the thread that created it.
template <class Service>
class ServiceView {
 public:
  ServiceView() : hold_(entry()) {}
  const Service& operator*() const { return *static_cast<const Service*>(hold_.service()); }
  const Service* operator->() const { return &**this; }

 private:
  static internal::Entry& entry() {
    static internal::Entry& unnamed = internal::entryFor(typeid(Service), std::nullopt);
    return unnamed;
  }

  internal::Hold hold_;
};

}  // namespace zk
