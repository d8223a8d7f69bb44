#pragma once

#include <ZKStrings/platform/Resolver.h>

#include <cstdint>
#include <optional>
#include <typeinfo>

namespace zk {

namespace registry {

/// What one thread keeps of one entry, so that viewing it again costs no reference count. It fills the cache
/// lines that it stands on: its thread writes to it at every view, and no other thread may have to wait for
/// that.
struct alignas(128) Kept {
  const Entry* entry;
  const void* service;
  std::uint64_t generation;
  unsigned views;  // that are open
  Service owner;
  Kept* next;
};

/// A view's hold on a service: on what the thread keeps, or else on its own reference.
class Hold {
 public:
  explicit Hold(Entry& entry);
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  ~Hold() {
    if (kept_) --kept_->views;
  }
  [[nodiscard]] const void* service() const { return service_; }

 private:
  const void* service_;
  Kept* kept_;
  Service owner_{};
};

}  // namespace registry

/// One resolve of the unnamed service of the type `Service` without copying it, for code that reads a little
/// of a value very often. It takes no lock and writes to no memory that threads share, as long as nothing new
/// has been registered. The price: each thread that has viewed a service keeps the value that it saw until its
/// next view of that service, or until it ends.
///
///     const ServiceView<Language> language;
///     read(language->preferredLanguages);
///
/// The service is valid as long as the view, which is to be used on the thread that made it.
template <class Service>
class ServiceView {
 public:
  ServiceView() : hold_(entry()) {}
  const Service& operator*() const { return *static_cast<const Service*>(hold_.service()); }
  const Service* operator->() const { return &**this; }

 private:
  static registry::Entry& entry() {
    static registry::Entry& unnamed = registry::entryFor(typeid(Service), std::nullopt);
    return unnamed;
  }

  registry::Hold hold_;
};

}  // namespace zk
