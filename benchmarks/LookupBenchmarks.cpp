#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/benchmarks/Allocations.h>
#include <ZKStrings/benchmarks/OtherSystems.h>
#include <ZKStrings/benchmarks/Registration.h>
#include <ZKStrings/benchmarks/Workload.h>
#include <ZKStrings/benchmarks/Yardstick.h>

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace zk::benchmarks {

namespace {

const Yardstick& yardstick() {
  static const auto& table = *new Yardstick(germanTexts());
  return table;
}

std::string textByYardstick(const Request& request) {
  if (request.names.empty()) return yardstick().find(request.lookedUpKey);
  return yardstick().find(request.lookedUpKey, request.names, request.values);
}

std::string textByModule(const Request& request) {
  const auto& names = request.names;
  const auto& values = request.values;
  switch (names.size()) {
    case 0:
      return localizedString(request.key, request.defaultValue, request.count, {});
    case 1:
      return localizedString(request.key, request.defaultValue, request.count, {{names[0], values[0]}});
    default:
      return localizedString(request.key, request.defaultValue, request.count,
                             {{names[0], values[0]}, {names[1], values[1]}, {names[2], values[2]}});
  }
}

/// Throws `std::runtime_error` unless `text` returns the same texts as the yardstick: only then are their times
/// comparable.
void compare(const Requests& sequence, std::string (*text)(const Request&)) {
  for (const Request* request : sequence) {
    const std::string found = text(*request);
    const std::string expected = textByYardstick(*request);
    if (found != expected)
      throw std::runtime_error(request->lookedUpKey + " is \"" + found + "\", not \"" + expected + "\"");
  }
}

void measure(benchmark::State& state, const Requests& sequence, std::string (*text)(const Request&)) {
  for (const Request* request : sequence) benchmark::DoNotOptimize(text(*request));
  const std::size_t before = allocationsByThread();
  for (auto _ : state) {
    for (const Request* request : sequence) benchmark::DoNotOptimize(text(*request));
  }
  const std::size_t allocations = allocationsByThread() - before;
  const double lookups = static_cast<double>(state.iterations()) * kRequests;
  state.counters[kTimesPerIteration] = kRequests;
  state.counters[kAllocations] = static_cast<double>(allocations) / lookups;
}

struct System {
  const char* name;
  std::string (*text)(const Request&);
};

constexpr System kSystems[] = {
    {"yardstick", textByYardstick}, {"module", textByModule}, {"gettext", textByGettext}, {"ICU", textByICU}};

struct Sequence {
  const char* name;
  Kind kind;
};

constexpr Sequence kSequences[] = {{"plain", Kind::plain},
                                   {"counted", Kind::counted},
                                   {"1 substitution", Kind::oneSubstitution},
                                   {"3 substitutions", Kind::threeSubstitutions}};

/// The systems that can be measured on this machine. Names the others, and why, on standard error; stops the
/// program if the module is among them.
std::vector<System> comparableSystems() {
  std::vector<System> systems;
  for (const System& system : kSystems) {
    try {
      for (const Sequence& sequence : kSequences) compare(requests(sequence.kind), system.text);
      systems.push_back(system);
    } catch (const std::runtime_error& failure) {
      std::cerr << "benchmarks: " << system.name << " cannot be measured: " << failure.what() << "\n";
      if (system.text == textByModule) std::exit(1);
    }
  }
  return systems;
}

/// The given number of languages without table, and then German.
SharedArray<std::string> germanAfter(std::size_t others) {
  constexpr const char* kWithoutTable[] = {"el-GR", "fi-FI", "hu-HU", "is-IS", "lt-LT",
                                           "lv-LV", "ro-RO", "sk-SK", "hr-HR"};
  std::vector<std::string> preferred(kWithoutTable, kWithoutTable + others);
  preferred.emplace_back("de-DE");
  return preferred;
}

}  // namespace

void registerLookupBenchmarks() {
  Current::language = Language{};
  Current::language->preferredLanguages = germanAfter(0);
  const std::vector<System> systems = comparableSystems();
  for (const Sequence& sequence : kSequences) {
    for (const System& system : systems) {
      registerBenchmark(std::string(sequence.name) + "/" + system.name, [=](benchmark::State& state) {
        Current::language->preferredLanguages = germanAfter(0);
        measure(state, requests(sequence.kind), system.text);
      });
    }
  }
  const std::pair<const char*, const char*> identifiers[] = {
      {"de", "de"}, {"en", "en"}, {"en-US", "en-US"}, {"zh-Hans-CN", "zh-Hans-CN"}, {"not ASCII", "dé-DE"}};
  for (const auto& [name, identifier] : identifiers) {
    registerBenchmark(std::string("plain/module, ") + name,
                      [identifier = identifier](benchmark::State& state) {
                        Current::language->preferredLanguages = {identifier};
                        measure(state, requests(Kind::plain), textByModule);
                      });
  }
  const std::pair<const char*, std::size_t> winners[] = {{"third", 2}, {"tenth", 9}};
  for (const auto& [place, others] : winners) {
    registerBenchmark(std::string("plain/module, winner ") + place,
                      [others = others](benchmark::State& state) {
                        Current::language->preferredLanguages = germanAfter(others);
                        measure(state, requests(Kind::plain), textByModule);
                      });
  }
  registerBenchmark("plain/module, no winner of three", [](benchmark::State& state) {
    Current::language->preferredLanguages = {"el-GR", "fi-FI", "hu-HU"};
    measure(state, requests(Kind::plain), textByModule);
  });
}

}  // namespace zk::benchmarks
