#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/benchmarks/Allocations.h>
#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Workload.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

namespace zk::benchmarks {

namespace {

namespace fs = std::filesystem;

constexpr const char* kGermanTable = ZK_PROJECT_ROOT "/resources/de.lproj/Localizable.strings";
constexpr const char* kCountries = ZK_PROJECT_ROOT "/resources/countries.json";

std::string contents(const std::string& path) {
  std::string bytes(static_cast<std::size_t>(fs::file_size(path)), '\0');
  std::ifstream(path, std::ios::binary)
      .rdbuf()
      ->sgetn(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

/// Writes a table to a new directory. The table is then read from the system's cache.
std::string freshDirectory(const std::string& table) {
  static int number = 0;
  const std::string path = workDirectory() + "/opened-" + std::to_string(number++);
  fs::create_directory(path);
  std::ofstream(path + "/Localizable.strings", std::ios::binary) << table;
  return path;
}

/// Opens a table as the first lookup does: the bundle, the file, the index.
void openTable(benchmark::State& state, const std::string& table) {
  std::size_t held = 0;
  for (auto _ : state) {
    const std::string path = freshDirectory(table);
    // After this, both read from the system's cache.
    benchmark::DoNotOptimize(contents(path + "/Localizable.strings"));
    const Bundle& bundle = *Bundle::initWithPath(path);
    const std::size_t before = bytesHeldByThread();
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(bundle.localizedStringForKey("About", ""));
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    held = bytesHeldByThread() - before;
    fs::remove_all(path);
  }
  state.counters[kBytes] = static_cast<double>(table.size());
  state.counters[kHeldBytes] = static_cast<double>(held);
  state.counters[kTimesPerIteration] = 1;
}

/// Reads a file of the same size into memory that is kept, as a table's memory is.
void readTable(benchmark::State& state, const std::string& table) {
  static auto& kept = *new std::vector<std::string>;
  for (auto _ : state) {
    const std::string path = freshDirectory(table);
    const auto begin = std::chrono::steady_clock::now();
    kept.push_back(contents(path + "/Localizable.strings"));
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    fs::remove_all(path);
  }
  state.counters[kBytes] = static_cast<double>(table.size());
  state.counters[kTimesPerIteration] = 1;
}

std::string grownKey(std::size_t number) {
  return "This_is_the_key_of_an_entry_with_number_" + std::to_string(number);
}

std::string grownTable(std::size_t keys) {
  std::string table;
  for (std::size_t i = 0; i < keys; ++i) {
    const std::string number = std::to_string(i);
    table.append("\"")
        .append(grownKey(i))
        .append("\" = \"This is the text of entry ")
        .append(number)
        .append("\";\n");
  }
  return table;
}

void lookUpInGrownTable(benchmark::State& state, std::size_t keys) {
  const Bundle& bundle = *Bundle::initWithPath(freshDirectory(grownTable(keys)));
  std::mt19937 random(1);
  std::vector<std::string> sequence;
  for (std::size_t i = 0; i < kRequests; ++i) sequence.push_back(grownKey(random() % keys));
  for (auto _ : state) {
    for (const std::string& key : sequence)
      benchmark::DoNotOptimize(std::string(bundle.localizedStringForKey(key, "")));
  }
  state.counters[kTimesPerIteration] = kRequests;
}

}  // namespace

void registerOpeningBenchmarks() {
  registerBenchmark("Language/module", [](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Language());
    state.counters[kTimesPerIteration] = 1;
  });
  registerBenchmark("Language/document of the JSON library", [](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(nlohmann::json::parse(std::ifstream(kCountries)));
    state.counters[kTimesPerIteration] = 1;
  });
  const std::string german = contents(kGermanTable);
  registerBenchmark("opening/German table", [=](benchmark::State& state) { openTable(state, german); })
      ->UseManualTime()
      ->Iterations(100);
  registerBenchmark("opening/reading the file", [=](benchmark::State& state) { readTable(state, german); })
      ->UseManualTime()
      ->Iterations(100);
  for (const std::size_t keys : {1000U, 10000U, 100000U}) {
    const std::string name = std::to_string(keys) + " keys";
    registerBenchmark("growth/lookup, " + name,
                      [=](benchmark::State& state) { lookUpInGrownTable(state, keys); });
    registerBenchmark("growth/opening, " + name,
                      [=](benchmark::State& state) { openTable(state, grownTable(keys)); })
        ->UseManualTime()
        ->Iterations(10);
  }
}

}  // namespace zk::benchmarks
