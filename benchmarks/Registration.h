#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

/// Counters by which a benchmark tells the report more than its time.
inline constexpr const char* kTimesPerIteration =
    "per iteration";  ///< how many times it did its thing in one iteration
inline constexpr const char* kAllocations = "allocations";  ///< per time
inline constexpr const char* kBytes = "bytes";              ///< of the text that it worked on
inline constexpr const char* kHeldBytes = "held bytes";     ///< of memory that it left behind

template <class Function>
benchmark::internal::Benchmark* registerBenchmark(const std::string& name, Function&& function) {
  return benchmark::RegisterBenchmark(name.c_str(), std::forward<Function>(function));
}

void registerLookupBenchmarks();
void registerOpeningBenchmarks();
void registerThreadBenchmarks();
void registerProcessBenchmarks();

}  // namespace zk::benchmarks
