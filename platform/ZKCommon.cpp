#include <ZKStrings/platform/ZKCommon.h>

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace zk {

NetworkReaching::~NetworkReaching() = default;

namespace Current {

namespace {

class UnknownReachability final : public NetworkReaching {
 public:
  std::optional<std::string> networkCountryCode() const override { return std::nullopt; }
};

struct Holder {
  std::mutex mutex{};
  std::shared_ptr<const NetworkReaching> service = std::make_shared<const UnknownReachability>();
};

Holder& holder() {
  static auto& holder = *new Holder;  // never destroyed: the service may be asked for at any time
  return holder;
}

}  // namespace

const ReachabilityProperty& ReachabilityProperty::operator=(
    std::shared_ptr<const NetworkReaching> service) const {
  if (!service) service = std::make_shared<const UnknownReachability>();
  const std::lock_guard lock(holder().mutex);
  holder().service.swap(service);
  return *this;
}

std::shared_ptr<const NetworkReaching> ReachabilityProperty::service() {
  const std::lock_guard lock(holder().mutex);
  return holder().service;
}

}  // namespace Current

}  // namespace zk
