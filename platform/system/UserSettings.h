#pragma once

#include <ZKStrings/platform/Locale.h>

#include <optional>

namespace zk {

/// Returns the locale and languages in the system's settings for the user. Returns nothing if the system has only the
/// environment, or if the settings cannot be read.
[[nodiscard]] std::optional<LocaleSettings> systemSettings();

}  // namespace zk
