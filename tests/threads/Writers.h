#pragma once

#include <ZKStrings/region/CurrentLanguage.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <thread>

namespace zk::soak {

inline constexpr const char* kLanguages[] = {"ar", "da", "de", "es", "fr", "hi", "id", "it", "ja", "ko",
                                             "nb", "nl", "pl", "pt", "ru", "sv", "tr", "uk", "vi", "zh"};

/// Threads that set the language, one in each way that there is, and a record of what was set when: each writer counts
/// what it begins and what it has done, and its count tells the language. What is in force at a moment is, for some
/// writer, the last that it has done or something that it has begun since.
class Writers {
 public:
  static constexpr std::size_t kWays = 3;
  using Moment = std::array<std::uint64_t, kWays>;

  /// Begins a new record; called while no writer and no reader is at work.
  void restart() {
    const std::string language = Current::language.get().preferredLanguages[0];
    initial_ = static_cast<std::size_t>(std::ranges::find(kLanguages, language) - std::begin(kLanguages));
    for (Counts& counts : counts_) counts.begun = counts.done = 0;
  }

  /// Sets the language that comes next for the writer of the way `way`; called by one thread for each.
  void write(std::size_t way) {
    constexpr std::uint64_t kBurst = 8;
    Counts& counts = counts_[way];
    const std::uint64_t number = ++counts.begun;
    set(way, kLanguages[languageOf(way, number)]);
    counts.done = number;
    ++changes_;
    // Readers are to meet quiet times too, in which only one language is right.
    if (number % kBurst == 0) std::this_thread::sleep_for(std::chrono::microseconds(100));
  }

  /// How much each writer has done.
  [[nodiscard]] Moment done() const {
    Moment moment{};
    for (std::size_t way = 0; way < kWays; ++way) moment[way] = counts_[way].done;
    return moment;
  }

  /// Whether `is(index of a language)` holds for one that may have been in force since the moment `before`.
  template <class Is>
  [[nodiscard]] bool anySince(const Moment& before, Is is) const {
    if (before == Moment{} && is(initial_)) return true;
    for (std::size_t way = 0; way < kWays; ++way) {
      const std::uint64_t begun = counts_[way].begun;
      for (std::uint64_t number = std::max<std::uint64_t>(before[way], 1); number <= begun; ++number) {
        if (is(languageOf(way, number))) return true;
      }
    }
    return false;
  }

  [[nodiscard]] std::uint64_t changes() const { return changes_; }

 private:
  struct alignas(128) Counts {
    std::atomic<std::uint64_t> begun{0};
    std::atomic<std::uint64_t> done{0};
  };

  static std::size_t languageOf(std::size_t way, std::uint64_t number) {
    return (way * 7 + number) % std::size(kLanguages);
  }

  static void set(std::size_t way, const char* language) {
    if (way == 0) {
      Language now = Current::language;
      now.preferredLanguages = {language};
      Current::language = now;
    } else if (way == 1) {
      Current::language->preferredLanguages = {language};
    } else {
      Current::language.change([&](Language& now) { now.preferredLanguages = {language}; });
    }
  }

  std::array<Counts, kWays> counts_{};
  std::size_t initial_ = 0;
  std::atomic<std::uint64_t> changes_ = 0;
};

}  // namespace zk::soak
