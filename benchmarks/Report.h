#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

/// Collects the medians of all benchmarks and prints them as tables of 80 columns, with the important ratios
/// and their limits at the end.
class Report : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  /// Whether a printed ratio missed its limit.
  [[nodiscard]] bool missedLimits() const { return missedLimits_; }

 private:
  struct Row {
    double nanoseconds = 0;  // per operation
    std::map<std::string, double> counters;
  };
  enum class Limit { atMost, atLeast };

  void printTimes() const;
  void printOpenings() const;
  void printRatios();
  void printGains();
  void printRatio(const char* what, double ratio, Limit kind, double limit);
  [[nodiscard]] double time(const std::string& name) const { return rows_.at(name).nanoseconds; }
  [[nodiscard]] double counter(const std::string& name, const char* counter) const {
    return rows_.at(name).counters.at(counter);
  }

  std::map<std::string, Row> rows_;
  bool missedLimits_ = false;
};

}  // namespace zk::benchmarks
