#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

namespace zk {

/// The module's own bundle: the directory with the language directories and countries.json. Found on the first call and
/// the same object on every later call. Thread-safe. Returns a bundle without resources while the directory temporarily
/// cannot be found or listed; the next call looks again.
[[nodiscard]] ZK_EXPORT const Bundle& bundle();

/// The app's main bundle: the directory of its executable. Found on the first call and the same object on every later
/// call. Thread-safe. Returns a bundle without resources while the directory temporarily cannot be found or listed; the
/// next call looks again.
[[nodiscard]] ZK_EXPORT const Bundle& mainBundle();

namespace internal {

/// The module's own bundle; null while it temporarily cannot be found or listed.
[[nodiscard]] const Bundle* moduleBundle();

}  // namespace internal

}  // namespace zk
