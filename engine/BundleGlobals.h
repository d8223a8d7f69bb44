#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

namespace zk {

/// The module's own bundle: the directory with the language directories and countries.json. Found at the
/// first call of any thread, once, and the same object ever after. While it cannot be found or listed for
/// want of descriptors or memory, a bundle without resources; the next call looks again.
[[nodiscard]] ZK_EXPORT const Bundle& bundle();

/// The app's main bundle, found likewise and independently of `bundle`. The module itself reads nothing from it.
[[nodiscard]] ZK_EXPORT const Bundle& mainBundle();

}  // namespace zk
