// Uses the module from many threads at once for a while, and ends with status 1 when a text belongs to no language that
// was set while it was looked up, or when memory grows.
//   zk_soak SECONDS

#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/ServiceView.h>
#include <ZKStrings/tests/threads/FirstUse.h>
#include <ZKStrings/tests/threads/Writers.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace zk::soak {

namespace {

[[noreturn]] void fail(const std::string& fault) {
  std::fprintf(stderr, "zk_soak: %s\n", fault.c_str());
  std::_Exit(1);
}

/// One accessor of each family.
constexpr std::string (*kFamilies[])() = {
    [] { return ZKStrings::About(); },
    [] { return ZKStrings::Your_Extra_Lives_are_on_the_way(2); },
    [] { return ZKStrings::Are_you_sure_you_want_to_kick_username("a player with a long name"); },
    [] { return ZKStrings::badgeCount_Badges("4", 4); },
};

/// The texts of the families in one language.
using Texts = std::vector<std::string>;

std::vector<Texts> textsOfAllLanguages() {
  std::vector<Texts> all;
  for (const char* language : kLanguages) {
    Current::language->preferredLanguages = {language};
    Texts& texts = all.emplace_back();
    for (const auto family : kFamilies) texts.push_back(family());
  }
  return all;
}

/// A service whose making and whose end look texts up.
struct Greeting {
  explicit Greeting(std::string shown) : text(std::move(shown)) {}
  Greeting(const Greeting&) = default;
  Greeting& operator=(const Greeting&) = delete;
  ~Greeting() { static_cast<void>(ZKStrings::About()); }
  std::string text;
};

class Soak {
 public:
  Soak() : texts_(textsOfAllLanguages()) { registerGreeting(); }

  /// Lets the threads do their work for a while. In every fourth round all writers are at work, else one.
  void round(int number, std::chrono::milliseconds time) {
    isOver_ = false;
    writers_.restart();
    std::vector<std::thread> threads;
    const auto add = [&](auto work) {
      threads.emplace_back([this, work] {
        while (!isOver_) work();
      });
    };
    for (std::size_t way = 0; way < Writers::kWays; ++way) {
      const auto turn = static_cast<std::size_t>(number) % (Writers::kWays + 1);
      if (turn == way || turn == Writers::kWays) add([this, way] { writers_.write(way); });
    }
    for (int i = 0; i < 3; ++i) add([this] { readTexts(); });
    add([this] { readLanguage(); });
    add([this] { useServices(); });
    for (int i = 0; i < 2; ++i) {
      add([this] {
        std::thread([this] { readTexts(); }).join();
        ++shortThreads_;
      });
    }
    std::this_thread::sleep_for(time);
    isOver_ = true;
    for (std::thread& thread : threads) thread.join();
  }

  void report(int rounds) const {
    std::printf("%d rounds: %llu texts, %llu changes of the language, %llu threads that came and went\n",
                rounds, static_cast<unsigned long long>(lookups_),
                static_cast<unsigned long long>(writers_.changes()),
                static_cast<unsigned long long>(shortThreads_));
  }

 private:
  void readTexts() {
    for (std::size_t family = 0; family < std::size(kFamilies); ++family) {
      const Writers::Moment before = writers_.done();
      const std::string text = kFamilies[family]();
      const bool isRight =
          writers_.anySince(before, [&](std::size_t language) { return texts_[language][family] == text; });
      if (!isRight) fail("\"" + text + "\" belongs to no language that was set at that time");
      ++lookups_;
    }
  }

  void readLanguage() {
    const Writers::Moment before = writers_.done();
    const Language one = Current::language;
    const Language other = Resolver::resolve<Language>();
    for (const Language& read : {one, other}) {
      const std::string& first = read.preferredLanguages[0];
      const bool isRight =
          writers_.anySince(before, [&](std::size_t language) { return kLanguages[language] == first; });
      if (!isRight || read.preferredLanguageCountry() != first) fail(first + " was not set at that time");
    }
    if (one.country() != one.preferredLanguages[0]) fail("A country is not that of its language");
    if (one.countries.empty() || Locale::preferredLanguages().empty()) fail("A list is empty");
  }

  void registerGreeting() {
    Resolver::register_<Greeting>([] {
      Resolver::register_<std::string>([] { return ZKStrings::About(); });
      return Greeting(Resolver::resolve<std::string>());
    }).scope(ResolverScope::application);
  }

  void useServices() {
    registerGreeting();
    const std::string text = ServiceView<Greeting>()->text;
    const auto isAbout = [&](const Texts& texts) { return texts[0] == text; };
    if (std::none_of(texts_.begin(), texts_.end(), isAbout)) fail("\"" + text + "\" is of no language");
  }

  const std::vector<Texts> texts_;
  Writers writers_{};
  std::atomic<bool> isOver_ = false;
  std::atomic<std::uint64_t> lookups_ = 0;
  std::atomic<std::uint64_t> shortThreads_ = 0;
};

struct Memory {
  std::size_t heap;      // what is allocated; nothing under sanitizers
  std::size_t resident;  // what the process takes of the machine's
};

Memory usedMemory() {
  const struct mallinfo2 info = mallinfo2();
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return {info.uordblks + info.hblkhd, pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE))};
}

/// Fails when there is more now than after the first rounds.
void expectNoGrowth(const Memory& before, const Memory& now) {
  constexpr std::size_t kHeapTolerance = 16 * 1024;
  constexpr std::size_t kResidentTolerance = 8 << 20;
  std::printf("Memory: %zu KB of the heap, then %zu; %zu KB of the machine's, then %zu\n", before.heap / 1024,
              now.heap / 1024, before.resident / 1024, now.resident / 1024);
  if (before.heap == 0) return;  // sanitizers keep what was freed for a while
  if (now.heap > before.heap + kHeapTolerance) fail("The heap grows");
  if (now.resident > before.resident + kResidentTolerance) fail("The process grows");
}

int run(int seconds) {
  constexpr int kRounds = 10;
  constexpr int kWarmUps = 3;
  if (!isFirstUseSafe()) fail("First uses on several threads at once do not agree");
  Current::language = Language{};
  Soak soak;
  Memory before{};
  for (int round = 0; round < kRounds; ++round) {
    if (round == kWarmUps) before = usedMemory();
    soak.round(round, std::chrono::milliseconds(seconds * 1000 / kRounds));
  }
  soak.report(kRounds);
  expectNoGrowth(before, usedMemory());
  return 0;
}

}  // namespace

}  // namespace zk::soak

int main(int argc, char** argv) {
  const int seconds = argc == 2 ? std::atoi(argv[1]) : 0;
  if (seconds > 0) return zk::soak::run(seconds);
  std::fputs("zk_soak SECONDS\n", stderr);
  return 2;
}
