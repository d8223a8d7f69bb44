#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Report.h>

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  zk::benchmarks::registerLookupBenchmarks();
  zk::benchmarks::registerThreadBenchmarks();
  zk::benchmarks::registerOpeningBenchmarks();
  zk::benchmarks::registerProcessBenchmarks();
  zk::benchmarks::Report report;
  benchmark::RunSpecifiedBenchmarks(&report);
}
