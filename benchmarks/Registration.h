#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

// Counters that a benchmark reports in addition to its time.

/// Operations per iteration.
inline constexpr const char* kTimesPerIteration = "per iteration";
/// Heap allocations per operation.
inline constexpr const char* kAllocations = "allocations";
/// Bytes of text processed per operation.
inline constexpr const char* kBytes = "bytes";
/// Bytes of memory still allocated after an operation.
inline constexpr const char* kHeldBytes = "held bytes";

template <class Function>
benchmark::internal::Benchmark* registerBenchmark(const std::string& name, Function&& function) {
  return benchmark::RegisterBenchmark(name.c_str(), std::forward<Function>(function));
}

void registerLookupBenchmarks();
void registerOpeningBenchmarks();
void registerThreadBenchmarks();
void registerProcessBenchmarks();

}  // namespace zk::benchmarks
