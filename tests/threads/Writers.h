#pragma once

#include <ZKStrings/region/CurrentLanguage.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

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

  /// Sets the language that comes next for the writer of the way `way`; called by one thread for each.
  void write(std::size_t way) {
    Counts& counts = counts_[way];
    const std::uint64_t number = ++counts.begun;
    set(way, kLanguages[languageOf(way, number)]);
    counts.done = number;
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
    for (std::size_t way = 0; way < kWays; ++way) {
      const std::uint64_t last =
          std::min<std::uint64_t>(counts_[way].begun, before[way] + std::size(kLanguages));
      for (std::uint64_t number = before[way]; number <= last; ++number) {
        if (is(languageOf(way, number))) return true;
      }
    }
    return false;
  }

  [[nodiscard]] std::uint64_t changes() const {
    std::uint64_t sum = 0;
    for (const std::uint64_t each : done()) sum += each;
    return sum;
  }

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
};

}  // namespace zk::soak
