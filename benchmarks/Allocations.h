#pragma once

#include <cstddef>

namespace zk::benchmarks {

/// How often this thread has called operator new, and how many bytes more it has allocated than freed.
/// Counted in every program that links Allocations.cpp, which replaces operator new and delete.
[[nodiscard]] std::size_t allocationsByThread();
[[nodiscard]] std::size_t bytesHeldByThread();

}  // namespace zk::benchmarks
