#pragma once

#include <ZKStrings/platform/Bundle.h>

namespace zk {

/// What `bundle` gives, or null while it cannot be found or listed for want of descriptors or memory.
[[nodiscard]] const Bundle* moduleBundle();

}  // namespace zk
