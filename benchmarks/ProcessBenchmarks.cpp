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

/// Starts the program `name` beside this one and waits for its end.
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
  const std::pair<const char*, const char*> programs[] = {{"process/empty main", "zk_empty_process"},
                                                          {"process/first text", "zk_first_text_process"}};
  for (const auto& [name, program] : programs) {
    registerBenchmark(name, [program = program](benchmark::State& state) {
      for (auto _ : state) runToEnd(program);
      state.counters[kTimesPerIteration] = 1;
    })->Iterations(100);
  }
}

}  // namespace zk::benchmarks
