#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Report.h>

#include <cstdio>

#include <benchmark/benchmark.h>

namespace {

void printHelp() {
  std::puts(
      "Compares the speed of the module with other systems. Prints the medians and,\n"
      "at the end, the important ratios, each with its limit. Exits with status 1 if\n"
      "a ratio misses its limit.\n"
      "\n"
      "  --benchmark_filter=REGEX       only the rows that match, and their ratios\n"
      "  --benchmark_repetitions=N      medians of N rounds\n"
      "  --benchmark_min_time=SECONDS   for each row in each round\n"
      "  --benchmark_enable_random_interleaving=true\n"
      "                                 measures the rows in random order\n"
      "  --benchmark_list_tests         only lists the names of the rows\n"
      "  --benchmark_out=FILE --benchmark_out_format=json|csv\n"
      "                                 also writes all measurements to FILE");
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv, printHelp);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  zk::benchmarks::registerLookupBenchmarks();
  zk::benchmarks::registerThreadBenchmarks();
  zk::benchmarks::registerOpeningBenchmarks();
  zk::benchmarks::registerProcessBenchmarks();
  zk::benchmarks::Report report;
  benchmark::RunSpecifiedBenchmarks(&report);
  return report.missedLimits() ? 1 : 0;
}
