#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Workload.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <thread>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

namespace {

void arithmetic(benchmark::State& state) {
  for (auto _ : state) {
    std::uint64_t number = 1;
    for (int i = 0; i < 200000; ++i)
      benchmark::DoNotOptimize(number = number * 6364136223846793005 + 1442695040888963407);
  }
  state.counters[kTimesPerIteration] = benchmark::Counter(1, benchmark::Counter::kAvgThreads);
}

void lookups(benchmark::State& state) {
  const Requests& sequence = requests(Kind::plain);
  for (auto _ : state) {
    for (const Request* request : sequence) {
      benchmark::DoNotOptimize(localizedString(request->key, request->defaultValue, std::nullopt, {}));
    }
  }
  state.counters[kTimesPerIteration] = benchmark::Counter(kRequests, benchmark::Counter::kAvgThreads);
}

/// Assigns the current language every millisecond as long as it lives.
class Assigner {
 public:
  Assigner()
      : thread_([this] {
          while (!done_) {
            Current::language->preferredLanguages = {"de-DE"};
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
          }
        }) {}
  ~Assigner() {
    done_ = true;
    thread_.join();
  }

 private:
  std::atomic<bool> done_ = false;
  std::thread thread_;
};

void lookupsWhileAssigned(benchmark::State& state) {
  const std::unique_ptr<Assigner> assigner =
      state.thread_index() == 0 ? std::make_unique<Assigner>() : nullptr;
  lookups(state);
}

}  // namespace

void registerThreadBenchmarks() {
  const auto useGerman = [](const benchmark::State&) { Current::language->preferredLanguages = {"de-DE"}; };
  const int all = static_cast<int>(std::thread::hardware_concurrency());
  for (int threads = 1; threads <= all; threads = threads < 2 || threads == all ? threads + 1 : all) {
    registerBenchmark("threads/arithmetic", arithmetic)->Threads(threads)->UseRealTime();
    registerBenchmark("threads/module", lookups)->Setup(useGerman)->Threads(threads)->UseRealTime();
    registerBenchmark("threads/module, while another assigns", lookupsWhileAssigned)
        ->Setup(useGerman)
        ->Threads(threads)
        ->UseRealTime();
  }
}

}  // namespace zk::benchmarks
