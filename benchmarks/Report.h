#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

/// Collects the medians of all benchmarks and prints them as one table, with the ratios that matter at its
/// end.
class Report : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  struct Row {
    double nanoseconds = 0;  // each time
    std::map<std::string, double> counters;
  };

  void printRatios() const;
  void printGains() const;
  void printOpening() const;
  [[nodiscard]] double time(const std::string& name) const { return rows_.at(name).nanoseconds; }

  std::map<std::string, Row> rows_;
};

}  // namespace zk::benchmarks
