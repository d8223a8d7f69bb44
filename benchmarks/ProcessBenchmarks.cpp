#include <ZKStrings/benchmarks/Registration.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zk::benchmarks {

namespace {

/// Runs the program `name` in this program's directory until it ends.
void runToEnd(const std::string& name) {
  static const std::string directory =
      std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + "/";
  std::string path = directory + name;
  char* arguments[] = {path.data(), nullptr};
  pid_t process = 0;
  int status = 0;
  const bool isStarted = posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments, environ) == 0;
  if (isStarted && waitpid(process, &status, 0) == process && status == 0) return;
  std::cerr << "benchmarks: " << path << " failed\n";
  std::exit(1);
}

}  // namespace

void registerProcessBenchmarks() {
  constexpr const char* kEmpty = "zk_empty_process";
  constexpr const char* kFirstText = "zk_first_text_process";
  const auto measure = [](const char* name, const char* program, const char* other) {
    registerBenchmark(
        name,
        [=](benchmark::State& state) {
          for (auto _ : state) {
            runToEnd(other);  // alternating, so both programs find the caches in the same state
            const auto begin = std::chrono::steady_clock::now();
            runToEnd(program);
            state.SetIterationTime(
                std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
          }
          state.counters[kTimesPerIteration] = 1;
        })
        ->UseManualTime()
        ->Iterations(100);
  };
  measure("process/empty main", kEmpty, kFirstText);
  measure("process/first text", kFirstText, kEmpty);
}

}  // namespace zk::benchmarks
