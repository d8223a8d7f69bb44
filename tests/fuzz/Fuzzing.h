#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the fuzzers share. A fuzzer defines `test`; libFuzzer keeps each input for which the process stops.
namespace zk::fuzzing {

/// Tries one input: whatever bytes the fuzzer comes up with.
void test(std::string_view input);

/// Stops the process with a message when something that must hold does not.
void require(bool holds, std::string_view what);

/// `count` parts of an input, which ASCII's record separator (1E) divides. Those that are not there are
/// empty; the last has all that is left.
[[nodiscard]] std::vector<std::string> partsOf(std::string_view input, std::size_t count);

/// Counts the processor's time, other programs' left out, of what must not take longer than what it works on
/// is long. Stops the process at the end of a scope that took too long for `bytes`.
///
///     const TimeLimit limit(file.size());
class TimeLimit {
 public:
  explicit TimeLimit(std::size_t bytes);
  TimeLimit(const TimeLimit&) = delete;
  TimeLimit& operator=(const TimeLimit&) = delete;
  ~TimeLimit();

 private:
  const std::size_t bytes_;
  const double begin_;
};

}  // namespace zk::fuzzing
