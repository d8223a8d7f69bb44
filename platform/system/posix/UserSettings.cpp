#include <ZKStrings/platform/system/UserSettings.h>

#include <optional>

namespace zk {

std::optional<LocaleSettings> systemSettings() {
  return std::nullopt;
}

}  // namespace zk
