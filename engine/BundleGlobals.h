#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

namespace zk {

/// Returns the module's own bundle: the directory with the language directories and countries.json. Once the directory
/// has been found, every call returns the same object. Returns a bundle without resources while the directory temporarily
/// cannot be found or listed; the next call looks again. Thread-safe.
[[nodiscard]] ZK_EXPORT const Bundle& bundle();

/// Returns the app's main bundle: the directory of its executable. Once the directory has been found, every call returns
/// the same object. Returns a bundle without resources while the directory temporarily cannot be found or listed; the
/// next call looks again. Thread-safe.
[[nodiscard]] ZK_EXPORT const Bundle& mainBundle();

namespace internal {

/// Returns the module's own bundle; null while it temporarily cannot be found or listed.
[[nodiscard]] const Bundle* moduleBundle();

}  // namespace internal

}  // namespace zk
