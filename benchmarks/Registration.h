#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

// Counters by which a benchmark tells the report more than its time.

/// How many times it did its thing in one iteration.
inline constexpr const char* kTimesPerIteration = "per iteration";
/// Each time.
inline constexpr const char* kAllocations = "allocations";
/// Of the text that it worked on.
inline constexpr const char* kBytes = "bytes";
/// Of memory that it left behind.
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
