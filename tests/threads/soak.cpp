// Uses the module from many threads at once for a while. Exits with status 1 if a text is in a language that was not
// set while it was looked up, if first uses on several threads disagree, or if memory grows.
// With 0 seconds, it only tests the first uses. Each process has them only once.
//   zk_soak SECONDS

#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/Resolver.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <malloc.h>

namespace zk {

namespace {

[[noreturn]] void fail(const std::string& message) {
  std::fprintf(stderr, "zk_soak: %s\n", message.c_str());
  std::_Exit(1);
}

constexpr const char* kLanguages[] = {"ar", "da", "de", "es", "fr", "hi", "id", "it", "ja", "ko",
                                      "nb", "nl", "pl", "pt", "ru", "sv", "tr", "uk", "vi", "zh"};

/// One accessor of each form.
constexpr std::string (*kAccessors[])() = {
    [] { return ZKStrings::About(); },
    [] { return ZKStrings::Your_Extra_Lives_are_on_the_way(2); },
    [] { return ZKStrings::Are_you_sure_you_want_to_kick_username("a player with a long name"); },
    [] { return ZKStrings::badgeCount_Badges("4", 4); },
};

/// The texts of the accessors in one language.
using Texts = std::vector<std::string>;

std::vector<Texts> textsInAllLanguages() {
  std::vector<Texts> all;
  for (const char* language : kLanguages) {
    Current::language->preferredLanguages = {language};
    Texts& texts = all.emplace_back();
    for (const auto accessor : kAccessors) texts.push_back(accessor());
  }
  return all;
}

/// A service whose factory and destructor look texts up.
struct Greeting {
  explicit Greeting(std::string shown) : text(std::move(shown)) {}
  Greeting(const Greeting&) = default;
  Greeting& operator=(const Greeting&) = delete;
  ~Greeting() { static_cast<void>(ZKStrings::About()); }
  std::string text;
};

void registerGreeting() {
  Resolver::register_<Greeting>([] {
    Resolver::register_<std::string>([] { return ZKStrings::About(); });
    return Greeting(Resolver::resolve<std::string>());
  }).scope(ResolverScope::application);
}

class Soak {
 public:
  Soak() : texts_(textsInAllLanguages()) {
    registerGreeting();
    setNextLanguage();
  }

  /// Runs a writer and several readers for `time`.
  void run(std::chrono::milliseconds time) {
    isOver_ = false;
    std::vector<std::thread> threads;
    const auto repeat = [&](auto work) {
      threads.emplace_back([this, work] {
        while (!isOver_) work();
      });
    };
    repeat([this] { setNextLanguage(); });
    for (int i = 0; i < 3; ++i) repeat([this] { readTexts(); });
    repeat([this] { readLanguage(); });
    for (int i = 0; i < 2; ++i) repeat([this] { useServices(); });
    for (int i = 0; i < 2; ++i) repeat([this] { std::thread([this] { readTexts(); }).join(); });
    std::this_thread::sleep_for(time);
    isOver_ = true;
    for (std::thread& thread : threads) thread.join();
  }

  void report() const {
    std::printf("%llu texts, %llu changes of the language\n", static_cast<unsigned long long>(lookups_),
                static_cast<unsigned long long>(done_));
  }

 private:
  /// Sets the next language in each of the three ways in turn. Called by one thread at a time.
  void setNextLanguage() {
    constexpr std::uint64_t kBurst = 8;
    const std::uint64_t number = ++begun_;
    const SharedArray<std::string> list = {kLanguages[number % std::size(kLanguages)]};
    if (number % 3 == 0) {
      Language now = Current::language;
      now.preferredLanguages = list;
      Current::language = now;
    } else if (number % 3 == 1) {
      Current::language->preferredLanguages = list;
    } else {
      Current::language.change([&](Language& now) { now.preferredLanguages = list; });
    }
    done_ = number;
    // During the pauses, only one language is right.
    if (number % kBurst == 0) std::this_thread::sleep_for(std::chrono::microseconds(100));
  }

  /// Whether `matches(index of a language)` is true for a language that was set at some time after `done` changes.
  template <class Matches>
  [[nodiscard]] bool anySince(std::uint64_t done, Matches matches) const {
    const std::uint64_t begun = begun_;
    for (std::uint64_t number = done; number <= begun; ++number)
      if (matches(number % std::size(kLanguages))) return true;
    return false;
  }

  void readTexts() {
    for (std::size_t i = 0; i < std::size(kAccessors); ++i) {
      const std::uint64_t done = done_;
      const std::string text = kAccessors[i]();
      if (!anySince(done, [&](std::size_t language) { return texts_[language][i] == text; }))
        fail("\"" + text + "\" is in a language that was not set at that time");
      ++lookups_;
    }
  }

  void readLanguage() {
    const std::uint64_t done = done_;
    const Language read = Current::language;
    const std::string& first = read.preferredLanguages[0];
    if (!anySince(done, [&](std::size_t language) { return kLanguages[language] == first; }))
      fail(first + " was not set at that time");
    if (read.country() != first) fail("a country is not that of its language");
    if (Current::language->countries.empty() || Locale::preferredLanguages().empty()) fail("a list is empty");
  }

  void useServices() {
    registerGreeting();
    const std::string text = Resolver::resolve<Greeting>().text;
    const auto isAbout = [&](const Texts& texts) { return texts[0] == text; };
    if (std::none_of(texts_.begin(), texts_.end(), isAbout)) fail("\"" + text + "\" is in no language");
  }

  const std::vector<Texts> texts_;
  std::atomic<bool> isOver_ = false;
  std::atomic<std::uint64_t> begun_ = 0;  // changes of the language
  std::atomic<std::uint64_t> done_ = 0;
  std::atomic<std::uint64_t> lookups_ = 0;
};

/// Whether `get` returns the same on several threads that call it at once.
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
  const bool sameBundles = isSameOnAllThreads([] { return std::pair(&bundle(), &mainBundle()); });
  const bool sameCountries = isSameOnAllThreads([] { return Language().countries.size(); });
  Current::language = Language{};
  // ICU sets up tables when it first meets joined emoji and accents.
  Current::language->preferredLanguages = {"👨‍👩‍👧x", "e\u0301x", "de-DE"};
  return sameBundles && sameCountries && isSameOnAllThreads([] {
           return localizedString("About", "%{é}", std::nullopt, {{"e\u0301", "English"}});
         }) &&
         ZKStrings::About() == "Über uns";
}

/// The bytes that are allocated. Sanitizers have their own allocator, which reports none.
std::size_t allocatedBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void run(int seconds) {
  constexpr int kRounds = 10;
  constexpr int kWarmUps = 3;
#ifdef _WIN32
  constexpr std::size_t kTolerance = 256 * 1024;  // Wine counts blocks that it keeps for later
#else
  constexpr std::size_t kTolerance = 16 * 1024;
#endif
  if (!areFirstUsesTheSame()) fail("first uses on several threads disagree");
  if (seconds == 0) return;
  Soak soak;
  std::size_t before = 0;
  for (int round = 0; round < kRounds; ++round) {
    if (round == kWarmUps) before = allocatedBytes();
    soak.run(std::chrono::milliseconds(seconds * 1000 / kRounds));
  }
  soak.report();
  if (const std::size_t now = allocatedBytes(); now > before + kTolerance)
    fail("the heap grew from " + std::to_string(before) + " to " + std::to_string(now) + " bytes");
}

}  // namespace

}  // namespace zk

int main(int argc, char** argv) {
  if (argc == 2) return zk::run(std::atoi(argv[1])), 0;
  std::fputs("zk_soak SECONDS\n", stderr);
  return 2;
}
