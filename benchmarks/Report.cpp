#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Report.h>

#include <algorithm>
#include <cstdio>

namespace zk::benchmarks {

namespace {

/// "plain/module" of "plain/module/real_time", "threads/module:2" of "threads/module/real_time/threads:2".
std::string nameOf(const benchmark::BenchmarkReporter::Run& run) {
  std::string name = run.run_name.function_name;
  if (!run.run_name.threads.empty()) name += run.run_name.threads.substr(run.run_name.threads.find(':'));
  return name;
}

enum class Limit { atMost, atLeast };

void printRatio(const std::string& what, double ratio, Limit kind, double limit) {
  const bool holds = kind == Limit::atLeast ? ratio >= limit : ratio <= limit;
  std::printf("  %-80s %7.2f  (at %s %.2f)  %s\n", what.c_str(), ratio,
              kind == Limit::atLeast ? "least" : "most", limit, holds ? "ok" : "MISSED");
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
  std::printf("%-52s %12s %12s %12s %12s %8s\n", "median of all repetitions", "ns", "allocations", kBytes,
              kHeldBytes, "MB/s");
  for (const auto& [name, row] : rows_) {
    std::printf("%-52s %12.1f", name.c_str(), row.nanoseconds);
    for (const char* counter : {kAllocations, kBytes, kHeldBytes}) {
      const auto found = row.counters.find(counter);
      if (found == row.counters.end()) {
        std::printf(" %12s", "");
      } else {
        std::printf(counter == kAllocations ? " %12.2f" : " %12.0f", found->second);
      }
    }
    if (row.counters.contains(kBytes)) std::printf(" %8.0f", row.counters.at(kBytes) / row.nanoseconds * 1e3);
    std::printf("\n");
  }
  printRatios();
}

void Report::printRatios() const {
  std::printf("\nratios\n");
  const auto print = [&](const std::string& what, const std::string& a, const std::string& b, double limit) {
    if (rows_.contains(a) && rows_.contains(b)) printRatio(what, time(a) / time(b), Limit::atMost, limit);
  };
  for (const std::string kind : {"plain", "counted"}) {
    print(kind + ": module to yardstick", kind + "/module", kind + "/yardstick", 2.5);
    print(kind + ": module to gettext", kind + "/module", kind + "/gettext", 0.6);
    print(kind + ": module to ICU", kind + "/module", kind + "/ICU", 0.6);
  }
  for (const std::string kind : {"1 substitution", "3 substitutions"}) {
    print(kind + ": module to yardstick", kind + "/module", kind + "/yardstick", 1.6);
    print(kind + ": module to gettext", kind + "/module", kind + "/gettext", 1.0);
  }
  print("plain: winner third to winner first", "plain/module, winner third", "plain/module", 1.3);
  print("Language{} to the JSON library's document tree", "Language/module",
        "Language/document tree of the JSON library", 0.75);
  print("opening a table to reading its file", "opening/German table", "opening/reading the file", 10);
  print("process with a first text to empty main", "process/first text", "process/empty main", 1.5);
  print("lookup at 100,000 keys to that at 1,000", "growth/lookup, 100000 keys", "growth/lookup, 1000 keys",
        2);
  if (rows_.contains("threads/arithmetic:2")) printGains();
  if (rows_.contains("growth/opening, 100000 keys")) printOpening();
}

void Report::printGains() const {
  const auto gain = [&](const std::string& what) { return time(what + ":1") / time(what + ":2"); };
  for (const std::string what : {"threads/module", "threads/module, while another assigns"}) {
    printRatio(what + ": gain of two threads to that of arithmetic", gain(what) / gain("threads/arithmetic"),
               Limit::atLeast, 0.95);
  }
}

void Report::printOpening() const {
  const auto counter = [&](const char* row, const char* name) { return rows_.at(row).counters.at(name); };
  constexpr const char* kGrown = "growth/opening, 100000 keys";
  constexpr const char* kGerman = "opening/German table";
  printRatio("opening: MB of table text a second", counter(kGrown, kBytes) / time(kGrown) * 1e3,
             Limit::atLeast, 300);
  printRatio("an opened table's bytes to its file's", counter(kGerman, kHeldBytes) / counter(kGerman, kBytes),
             Limit::atMost, 1.6);
}

}  // namespace zk::benchmarks
