#pragma once

#include <cstdint>

namespace zk {

/// A number that is another one in each process and that nobody outside can foresee, for the hashes of texts
/// that come from files. The same at every call.
[[nodiscard]] std::uint64_t processSeed();

}  // namespace zk
