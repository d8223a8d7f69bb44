#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the fuzzers share. A fuzzer defines `test`; libFuzzer keeps each input for which the process stops.
namespace zk::fuzzing {

/// Tests one input, which may be any bytes.
void test(std::string_view input);

/// Stops the process with a message unless a condition is true.
void require(bool holds, std::string_view what);

/// Returns `count` parts of an input, separated by ASCII's record separator (1E). Missing parts are empty. The last
/// part has all the rest.
[[nodiscard]] std::vector<std::string> partsOf(std::string_view input, std::size_t count);

/// Limits the processor time of code whose cost must not grow faster than its input. Stops the process at the end of
/// a scope that took too long for `bytes`.
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
