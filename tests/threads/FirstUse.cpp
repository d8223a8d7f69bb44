#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/tests/threads/FirstUse.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace zk::soak {

namespace {

/// Whether `get` gives the same on several threads that call it at once.
template <class Get>
bool isSameOnAllThreads(Get get) {
  constexpr int kThreads = 8;
  std::atomic<int> waiting = kThreads;
  std::vector<decltype(get())> results(kThreads);
  std::vector<std::thread> threads;
  for (auto& result : results) {
    threads.emplace_back([&] {
      --waiting;
      while (waiting > 0) std::this_thread::yield();
      result = get();
    });
  }
  for (std::thread& thread : threads) thread.join();
  return std::adjacent_find(results.begin(), results.end(), std::not_equal_to()) == results.end();
}

bool areFirstUsesTheSame() {
  const bool areBundlesOne = isSameOnAllThreads([] { return std::pair(&bundle(), &mainBundle()); });
  const bool areCountriesTheSame = isSameOnAllThreads([] { return Language().countries.size(); });
  Current::language = Language{};
  // Joined emoji and accents need tables that ICU sets up at their first use.
  Current::language->preferredLanguages = {"👨‍👩‍👧x", "e\u0301x", "de-DE"};
  return areBundlesOne && areCountriesTheSame && isSameOnAllThreads([] {
           return localizedString("About", "%{é}", std::nullopt, {{"e\u0301", "English"}});
         }) &&
         ZKStrings::About() == "Über uns" && &bundle() != &mainBundle() && !Language().countries.empty();
}

}  // namespace

bool isFirstUseSafe() {
  constexpr int kProcesses = 20;
  for (int i = 0; i < kProcesses; ++i) {
    const pid_t child = fork();
    if (child == 0) _exit(areFirstUsesTheSame() ? 0 : 1);
    int status = 0;
    if (waitpid(child, &status, 0) != child || status != 0) return false;
  }
  return true;
}

}  // namespace zk::soak
