#pragma once

namespace zk::soak {

/// Whether threads that use the module for the first time at once all get the same: its bundles, its countries, its
/// texts. Tried in several processes of their own, forked by this one, which must not have used it yet.
[[nodiscard]] bool isFirstUseSafe();

}  // namespace zk::soak
