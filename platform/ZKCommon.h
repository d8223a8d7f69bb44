#pragma once

#include <ZKStrings/platform/Export.h>

#include <memory>
#include <optional>
#include <string>

// What ZKStrings needs of the app's shared module: the record `Current` of app-wide services.

namespace zk {

/// The app's network reachability service.
class ZK_EXPORT NetworkReaching {
 public:
  virtual ~NetworkReaching();
  /// The code of the country that the current network connection shows, or nothing when it is not known. May
  /// be called by any thread that reads `Language::country`.
  [[nodiscard]] virtual std::optional<std::string> networkCountryCode() const = 0;
};

namespace Current {

/// The property behind `Current::reachability`.
class ZK_EXPORT ReachabilityProperty {
 public:
  constexpr ReachabilityProperty() = default;
  ReachabilityProperty(const ReachabilityProperty&) = delete;

  /// Makes `service` the app's reachability service; none (a null pointer) is the state before the first
  /// assignment.
  const ReachabilityProperty& operator=(std::shared_ptr<const NetworkReaching> service) const;

  /// The app's service; before one was assigned, a service that knows no country. Never null.
  [[nodiscard]] operator std::shared_ptr<const NetworkReaching>() const { return service(); }
  /// The same, to call it.
  [[nodiscard]] std::shared_ptr<const NetworkReaching> operator->() const { return service(); }

 private:
  [[nodiscard]] static std::shared_ptr<const NetworkReaching> service();
};

/// The app's network reachability service. Any thread may read and assign it.
///
///     zk::Current::reachability = std::make_shared<CarrierReachability>();
///     std::optional<std::string> code = zk::Current::reachability->networkCountryCode();
inline constexpr ReachabilityProperty reachability;

}  // namespace Current

}  // namespace zk
