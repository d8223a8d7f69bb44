// Tests the module while system calls or allocations fail: each operation returns the right text, returns its
// documented result or throws std::bad_alloc. After the failure, all results are right.

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/faults/Failures.h>
#include <ZKStrings/tests/faults/Operations.h>
#include <ZKStrings/tests/faults/Outcome.h>

#include <cerrno>
#include <cstring>
#include <new>
#include <string>

#include <gtest/gtest.h>
#include <sys/mman.h>

namespace zk::faults {
namespace {

// EINTR does not last, because a call that is always interrupted never ends.
constexpr Failure kFailures[] = {
    {Kind::systemCall, EMFILE, false}, {Kind::systemCall, EMFILE, true},  {Kind::systemCall, ENFILE, false},
    {Kind::systemCall, ENFILE, true},  {Kind::systemCall, ENOMEM, false}, {Kind::systemCall, ENOMEM, true},
    {Kind::systemCall, EIO, false},    {Kind::systemCall, EIO, true},     {Kind::systemCall, EACCES, false},
    {Kind::systemCall, EACCES, true},  {Kind::systemCall, EINTR, false},  {Kind::systemCall, EAGAIN, false},
    {Kind::shortRead, 0, false},       {Kind::shortRead, 0, true},        {Kind::allocation, ENOMEM, false},
    {Kind::allocation, ENOMEM, true},  {Kind::systemCall, ESTALE, false}, {Kind::systemCall, ESTALE, true},
    {Kind::systemCall, EPERM, true},
};

bool isRefusal(const Failure& failure) {
  return failure.number == EACCES || failure.number == EPERM;
}

/// Runs `operation` in this process. First the call after `before` other calls fails, then no call fails.
Outcome outcomeHere(const Operation& operation, const Failure& failure, int before) noexcept {
  operation.prepare();
  std::string result = "bad_alloc";
  begin(failure, before);
  try {
    result = operation.act();
  } catch (const std::bad_alloc&) {
  }
  const bool hasFailed = end();
  const auto isOutcome = [&](const char* outcome) { return hasFailed && *outcome && result == outcome; };
  const bool isRefused = hasFailed && isRefusal(failure);
  const bool hasThrown = failure.kind == Kind::allocation && isOutcome("bad_alloc");
  const bool isQuiet = isOutcome(operation.quiet) || (isRefused && isOutcome(operation.refused));
  if (result != operation.right && !isQuiet && !hasThrown) return wrong;
  operation.prepare();
  const std::string later = operation.act();
  if (isRefused && later == operation.refused) return handled;
  if (later != operation.right) return lasting;
  return !isAllRight() ? lasting : hasFailed ? handled : nothingFailed;
}

class Failures : public ::testing::TestWithParam<Failure> {};

TEST_P(Failures, LeaveNoLastingErrors) {
  const Failure& failure = GetParam();
  if (failure.kind == Kind::allocation && !canAllocationsFail())
    GTEST_SKIP() << "the sanitizer's allocations cannot be made to fail";
  const bool mayTrap = isRefusal(failure);  // if there is no permission to read the resources
  // Shared with the child processes.
  struct Progress {
    int before, failures;
  };
  void* const shared =
      mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto& progress = *static_cast<Progress*>(shared);
  const testing::TemporaryDirectory directory;
  for (const Operation& operation : operationsIn(directory.path())) {
    const auto attempt = [&] { return outcomeHere(operation, failure, progress.before++); };
    const auto attemptAll = [&] {
      operation.prepare();
      static_cast<void>(operation.act());
      while (const Outcome outcome = attempt()) {
        if (outcome != handled) return outcome;
      }
      return nothingFailed;
    };
    Outcome outcome = handled;
    progress.before = 0;
    while (outcome == handled) {
      outcome = operation.use == Use::later ? outcomeElsewhere(attemptAll, mayTrap)
                                            : outcomeElsewhere(attempt, mayTrap);
    }
    const int last = progress.before - 1;
    EXPECT_EQ(outcome, nothingFailed)
        << operation.name << ", " << std::strerror(failure.number) << " at " << last;
    progress.failures += last;
  }
  EXPECT_GE(progress.failures, failure.kind == Kind::shortRead ? 10 : 100);
  munmap(shared, sizeof(Progress));
}

std::string nameOf(const ::testing::TestParamInfo<Failure>& info) {
  const Failure& failure = info.param;
  const std::string error = failure.kind == Kind::allocation  ? "Allocation"
                            : failure.kind == Kind::shortRead ? "ShortRead"
                                                              : strerrorname_np(failure.number);
  return error + (failure.lasts ? "Lasting" : "Once");
}

INSTANTIATE_TEST_SUITE_P(, Failures, ::testing::ValuesIn(kFailures), nameOf);

}  // namespace
}  // namespace zk::faults
