#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Report.h>

#include <algorithm>
#include <cstdio>
#include <thread>

namespace zk::benchmarks {

namespace {

/// "plain/module" of "plain/module/real_time", "threads/module:2" of "threads/module/real_time/threads:2".
std::string nameOf(const benchmark::BenchmarkReporter::Run& run) {
  std::string name = run.run_name.function_name;
  if (!run.run_name.threads.empty()) name += run.run_name.threads.substr(run.run_name.threads.find(':'));
  return name;
}

void printRatio(const char* what, double ratio, const char* comparison, double limit) {
  const bool isAtLeast = *comparison == '>';
  const bool holds = isAtLeast ? ratio >= limit : ratio <= limit;
  std::printf("  %-72s %6.2f  (%s %.2f)  %s\n", what, ratio, isAtLeast ? "at least" : "at most", limit,
              holds ? "ok" : "MISSED");
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
    const std::string name = nameOf(run);
    if (rows_.insert_or_assign(name, row).second) order_.push_back(name);
  }
}

void Report::Finalize() {
  std::printf("%-52s %14s %12s %12s %12s\n", "median of all repetitions", "ns", "allocations", "MB/s",
              "held bytes");
  for (const std::string& name : order_) {
    const Row& row = rows_.at(name);
    const auto counter = [&](const char* wanted) {
      const auto found = row.counters.find(wanted);
      return found == row.counters.end() ? 0.0 : found->second;
    };
    std::printf("%-52s %14.1f", name.c_str(), row.nanoseconds);
    if (row.counters.contains(kAllocations)) std::printf(" %12.2f", counter(kAllocations));
    if (row.counters.contains(kBytes))
      std::printf(" %12s %12.0f", "", counter(kBytes) / row.nanoseconds * 1e3);
    if (row.counters.contains(kHeldBytes)) std::printf(" %12.0f", counter(kHeldBytes));
    std::printf("\n");
  }
  printRatios();
}

void Report::printRatios() const {
  std::printf("\nratios\n");
  const auto ratio = [&](const std::string& a, const std::string& b) { return time(a) / time(b); };
  for (const std::string kind : {"plain", "counted"}) {
    printRatio((kind + ": module to yardstick").c_str(), ratio(kind + "/module", kind + "/yardstick"), "<",
               2.5);
    printRatio((kind + ": module to gettext").c_str(), ratio(kind + "/module", kind + "/gettext"), "<", 0.6);
    printRatio((kind + ": module to ICU").c_str(), ratio(kind + "/module", kind + "/ICU"), "<", 0.6);
  }
  for (const std::string kind : {"1 substitution", "3 substitutions"}) {
    printRatio((kind + ": module to yardstick").c_str(), ratio(kind + "/module", kind + "/yardstick"), "<",
               1.6);
    printRatio((kind + ": module to gettext").c_str(), ratio(kind + "/module", kind + "/gettext"), "<", 1.0);
  }
  printRatio("plain: winner third to winner first", ratio("plain/module, winner third", "plain/module"), "<",
             1.3);
  printRatio("Language{} to the JSON library's document tree",
             ratio("Language/module", "Language/document tree of the JSON library"), "<", 0.75);
  printRatio("opening a table to reading its file", ratio("opening/German table", "opening/reading the file"),
             "<", 10);
  printRatio("process with a first text to empty main", ratio("process/first text", "process/empty main"),
             "<", 1.5);
  const double ceiling = ratio("threads/arithmetic:1", "threads/arithmetic:2");
  for (const std::string what : {"threads/module", "threads/module, while another assigns"}) {
    printRatio((what + ": gain of two threads to that of arithmetic").c_str(),
               ratio(what + ":1", what + ":2") / ceiling, ">", 0.95);
  }
  printRatio("lookup at 100,000 keys to that at 1,000",
             ratio("growth/lookup, 100000 keys", "growth/lookup, 1000 keys"), "<", 2);
  const auto counter = [&](const char* row, const char* name) { return rows_.at(row).counters.at(name); };
  constexpr const char* kGrown = "growth/opening, 100000 keys";
  printRatio("opening: MB of table text a second", counter(kGrown, kBytes) / time(kGrown) * 1e3, ">", 300);
  constexpr const char* kGerman = "opening/German table";
  printRatio("an opened table's bytes to its file's", counter(kGerman, kHeldBytes) / counter(kGerman, kBytes),
             "<", 1.6);
}

}  // namespace zk::benchmarks
