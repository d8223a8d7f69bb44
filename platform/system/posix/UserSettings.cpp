#include <ZKStrings/platform/system/UserSettings.h>

namespace zk {

std::optional<LocaleSettings> systemSettings() {
  return std::nullopt;
}

}  // namespace zk
