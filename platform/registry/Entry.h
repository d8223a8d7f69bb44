#pragma once

#include <ZKStrings/platform/CacheLines.h>
#include <ZKStrings/platform/Registration.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <typeinfo>
#include <utility>

namespace zk::registry {

struct alignas(kCacheLine) Entry {
  Entry(const std::type_info& service, std::optional<std::string> given)
      : type(service), name(std::move(given)) {}

  const std::type_info& type;
  const std::optional<std::string> name;

  std::atomic<std::uint64_t> generation{0};  // counts the changes of the registration
  std::mutex mutex{};
  std::shared_ptr<Registration> registration{};  // guarded by `mutex`
};

/// What one resolve found.
struct Resolved {
  Service service;
  std::uint64_t generation;  ///< of the entry when it was found, or earlier
  ResolverScope scope;
};

[[nodiscard]] Resolved resolved(Entry& entry);

}  // namespace zk::registry
