#pragma once

#include <ZKStrings/platform/Export.h>

#include <memory>
#include <optional>
#include <string>

// The part of ZKCommon, the app's common module, that ZKStrings needs: app-wide services in the namespace `Current`.

namespace zk {

/// The app's network reachability service.
class ZK_EXPORT NetworkReaching {
 public:
  virtual ~NetworkReaching();
  /// Returns the country code that the network connection reports, or nothing if it is not known. Called on
  /// the thread that calls `Language::country`.
  [[nodiscard]] virtual std::optional<std::string> networkCountryCode() const = 0;
};

namespace Current {

/// The type of `Current::reachability`.
class ZK_EXPORT ReachabilityProperty {
 public:
  constexpr ReachabilityProperty() = default;
  ReachabilityProperty(const ReachabilityProperty&) = delete;

  /// Makes `service` the app's reachability service. A null pointer restores the state before the first assignment.
  const ReachabilityProperty& operator=(std::shared_ptr<const NetworkReaching> service) const;

  /// Returns the app's service. Before one is assigned, returns a service that does not know the country. Never null.
  [[nodiscard]] operator std::shared_ptr<const NetworkReaching>() const { return service(); }
  /// Returns the app's service, to call its functions. Never null.
  [[nodiscard]] std::shared_ptr<const NetworkReaching> operator->() const { return service(); }

 private:
  [[nodiscard]] static std::shared_ptr<const NetworkReaching> service();
};

/// The app's network reachability service. Thread-safe.
///
///     zk::Current::reachability = std::make_shared<CarrierReachability>();
///     std::optional<std::string> code = zk::Current::reachability->networkCountryCode();
inline constexpr ReachabilityProperty reachability;

}  // namespace Current

}  // namespace zk
