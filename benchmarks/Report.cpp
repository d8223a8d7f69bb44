#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Report.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace zk::benchmarks {

namespace {

/// "plain/module" of "plain/module/real_time", "threads/module:2" of "threads/module/real_time/threads:2".
std::string nameOf(const benchmark::BenchmarkReporter::Run& run) {
  std::string name = run.run_name.function_name;
  if (!run.run_name.threads.empty()) name += run.run_name.threads.substr(run.run_name.threads.find(':'));
  return name;
}

}  // namespace

void Report::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
    Row row;
    for (const auto& [name, counter] : run.counters) row.counters[name] = counter.value;
    // Threads of one benchmark share its iterations' time, and their counters are added up.
    const double times = std::max(row.counters[kTimesPerIteration], 1.0);
    row.nanoseconds = run.GetAdjustedRealTime() / times;
    rows_.insert_or_assign(nameOf(run), row);
  }
}

void Report::Finalize() {
  printTimes();
  printOpenings();
  printRatios();
}

void Report::printTimes() const {
  std::printf("%-46s %14s %18s\n", "medians of all repetitions", "ns", kAllocations);
  for (const auto& [name, row] : rows_) {
    std::printf("%-46s %14.1f", name.c_str(), row.nanoseconds);
    const auto allocations = row.counters.find(kAllocations);
    if (allocations != row.counters.end()) std::printf(" %18.2f", allocations->second);
    std::printf("\n");
  }
}

void Report::printOpenings() const {
  const auto isOpening = [](const auto& named) { return named.second.counters.contains(kBytes); };
  if (std::none_of(rows_.begin(), rows_.end(), isOpening)) return;
  std::printf("\n%-46s %10s %12s %8s\n", "files", kBytes, kHeldBytes, "MB/s");
  for (const auto& [name, row] : rows_) {
    if (!row.counters.contains(kBytes)) continue;
    const double bytes = counter(name, kBytes);
    std::printf("%-46s %10.0f ", name.c_str(), bytes);
    if (row.counters.contains(kHeldBytes)) {
      std::printf("%12.0f", counter(name, kHeldBytes));
    } else {
      std::printf("%12s", "");
    }
    std::printf(" %8.0f\n", bytes / row.nanoseconds * 1e3);
  }
}

void Report::printRatio(const char* what, double ratio, Limit kind, double limit) {
  const bool holds = kind == Limit::atLeast ? ratio >= limit : ratio <= limit;
  if (!holds) missedLimits_ = true;
  std::printf("%-46s %8.2f   at %-5s %7.2f   %s\n", what, ratio, kind == Limit::atLeast ? "least" : "most",
              limit, holds ? "ok" : "MISSED");
}

void Report::printRatios() {
  struct Ratio {
    const char* what;
    const char* a;
    const char* b;
    double most;
  };
  constexpr Ratio kRatios[] = {
      {"plain: module / yardstick", "plain/module", "plain/yardstick", 2.5},
      {"plain: module / gettext", "plain/module", "plain/gettext", 0.6},
      {"plain: module / ICU", "plain/module", "plain/ICU", 0.6},
      {"counted: module / yardstick", "counted/module", "counted/yardstick", 2.5},
      {"counted: module / gettext", "counted/module", "counted/gettext", 0.6},
      {"counted: module / ICU", "counted/module", "counted/ICU", 0.6},
      {"1 substitution: module / yardstick", "1 substitution/module", "1 substitution/yardstick", 1.75},
      {"1 substitution: module / gettext", "1 substitution/module", "1 substitution/gettext", 0.6},
      {"1 substitution: module / ICU", "1 substitution/module", "1 substitution/ICU", 0.3},
      {"3 substitutions: module / yardstick", "3 substitutions/module", "3 substitutions/yardstick", 1.3},
      {"3 substitutions: module / gettext", "3 substitutions/module", "3 substitutions/gettext", 0.6},
      {"3 substitutions: module / ICU", "3 substitutions/module", "3 substitutions/ICU", 0.3},
      {"plain: de / de-DE", "plain/module, de", "plain/module", 1.1},
      {"plain: en / de-DE", "plain/module, en", "plain/module", 1.1},
      {"plain: en-US / de-DE", "plain/module, en-US", "plain/module", 1.1},
      {"plain: zh-Hans-CN / de-DE", "plain/module, zh-Hans-CN", "plain/module", 1.1},
      {"plain: not ASCII / de-DE", "plain/module, not ASCII", "plain/module", 8},
      {"plain: winner third / winner first", "plain/module, winner third", "plain/module", 1.3},
      {"Language{} / parsing with the JSON library", "Language/module",
       "Language/document of the JSON library", 0.75},
      {"opening a table / reading its file", "opening/German table", "opening/reading the file", 10},
      {"process with one text / empty process", "process/first text", "process/empty main", 2},
      {"lookup in 100,000 keys / in 1,000 keys", "growth/lookup, 100000 keys", "growth/lookup, 1000 keys", 2},
  };
  std::printf("\nratios\n");
  for (const auto& [what, a, b, most] : kRatios) {
    if (rows_.contains(a) && rows_.contains(b)) printRatio(what, time(a) / time(b), Limit::atMost, most);
  }
  printGains();
  constexpr const char* kGrown = "growth/opening, 100000 keys";
  if (rows_.contains(kGrown)) {
    printRatio("opening: MB of table text per second", counter(kGrown, kBytes) / time(kGrown) * 1e3,
               Limit::atLeast, 300);
  }
  constexpr const char* kGerman = "opening/German table";
  if (rows_.contains(kGerman)) {
    printRatio("memory of an opened table / size of its file",
               counter(kGerman, kHeldBytes) / counter(kGerman, kBytes), Limit::atMost, 1.6);
  }
}

void Report::printGains() {
  const auto gain = [&](const std::string& what) { return time(what + ":1") / time(what + ":2"); };
  const auto print = [&](const char* what, const std::string& lookups) {
    if (!rows_.contains("threads/arithmetic:2") || !rows_.contains(lookups + ":2")) return;
    printRatio(what, gain(lookups) / gain("threads/arithmetic"), Limit::atLeast, 0.95);
  };
  print("speed-up by 2 threads: lookups / arithmetic", "threads/module");
  print("the same, while another thread assigns", "threads/module, while another assigns");
}

}  // namespace zk::benchmarks
