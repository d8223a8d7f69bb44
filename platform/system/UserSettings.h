#pragma once

#include <ZKStrings/platform/Locale.h>

#include <optional>

namespace zk {

/// The locale and languages in the system's settings for the user. Nothing if the system has none but the
/// environment, or if they cannot be read.
[[nodiscard]] std::optional<LocaleSettings> systemSettings();

}  // namespace zk
