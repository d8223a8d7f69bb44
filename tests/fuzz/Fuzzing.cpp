#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <time.h>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t room);

namespace zk::fuzzing {

namespace {

constexpr char kSeparator = '\x1E';

// Far above the time measured with sanitizers, and far below that of quadratic algorithms.
constexpr double kSecondsForAny = 0.2;
constexpr double kSecondsForByte = 50e-6;

double processorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Fills the room after the input with copies of one piece of it, because repetition reveals slow code.
std::size_t repeatPiece(std::uint8_t* data, std::size_t size, std::size_t room, std::minstd_rand& random) {
  const std::size_t begin = random() % size;
  const std::size_t piece = 1 + random() % (size - begin);
  std::vector<std::uint8_t> longer(data, data + begin);
  while (longer.size() + piece + (size - begin) <= room)
    longer.insert(longer.end(), data + begin, data + begin + piece);
  longer.insert(longer.end(), data + begin, data + size);
  std::memcpy(data, longer.data(), longer.size());
  return longer.size();
}

}  // namespace

void require(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "fuzzer: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

std::vector<std::string> partsOf(std::string_view input, std::size_t count) {
  std::vector<std::string> parts;
  while (parts.size() + 1 < count) {
    const std::string_view part = input.substr(0, input.find(kSeparator));
    parts.emplace_back(part);
    input.remove_prefix(std::min(part.size() + 1, input.size()));
  }
  parts.emplace_back(input);
  return parts;
}

TimeLimit::TimeLimit(std::size_t bytes) : bytes_(bytes), begin_(processorSeconds()) {
}

TimeLimit::~TimeLimit() {
  const double seconds = processorSeconds() - begin_;
  const double limit = kSecondsForAny + kSecondsForByte * static_cast<double>(bytes_);
  if (seconds > limit) std::fprintf(stderr, "%f s for %zu bytes; at most %f s\n", seconds, bytes_, limit);
  require(seconds <= limit, "this takes longer than its length allows");
}

}  // namespace zk::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zk::fuzzing::test({reinterpret_cast<const char*>(data), size});
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t room,
                                               unsigned seed) {
  constexpr unsigned kRepetitionsOneIn = 100;
  std::minstd_rand random(seed);
  if (size > 0 && size < room && random() % kRepetitionsOneIn == 0)
    return zk::fuzzing::repeatPiece(data, size, room, random);
  return LLVMFuzzerMutate(data, size, room);
}
