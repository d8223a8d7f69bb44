// Tests the module when memory has really run out, and when ICU's only attempt to set up its tables fails.

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/faults/Failures.h>
#include <ZKStrings/tests/faults/Operations.h>
#include <ZKStrings/tests/faults/Outcome.h>

#include <cerrno>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unicode/uvernum.h>

namespace zk::faults {
namespace {

/// Allocates all memory of the process except a block of `size` bytes. Frees it in the destructor.
class ExhaustedMemory {
 public:
  explicit ExhaustedMemory(std::size_t size) {
    void* const left = std::malloc(size);
    rlimit nothing{};
    getrlimit(RLIMIT_AS, &before_);
    nothing.rlim_max = before_.rlim_max;
    setrlimit(RLIMIT_AS, &nothing);
    for (std::size_t part = 1 << 20; part >= sizeof(Block); part /= 2) {
      while (void* const memory = std::malloc(part)) blocks_ = new (memory) Block{blocks_};
    }
    std::free(left);
  }
  ExhaustedMemory(const ExhaustedMemory&) = delete;
  ExhaustedMemory& operator=(const ExhaustedMemory&) = delete;
  ~ExhaustedMemory() {
    while (blocks_) std::free(std::exchange(blocks_, blocks_->next));
    setrlimit(RLIMIT_AS, &before_);
  }

 private:
  struct Block {
    Block* next;
  };
  Block* blocks_ = nullptr;
  rlimit before_{};
};

TEST(Memory, ExhaustionIsTemporary) {
  if (!canAllocationsFail()) GTEST_SKIP() << "sanitizers need more memory than they could have";
  const testing::TemporaryDirectory directory;
  int failures = 0;
  for (const Operation& operation : operationsIn(directory.path())) {
    if (operation.use != Use::firstOfICU) continue;
    for (std::size_t size = 16; size < 128 * 1024; size += 16 + size / 16) {
      const Outcome outcome = outcomeElsewhere([&]() noexcept {
        operation.prepare();
        bool hasThrown = false;
        try {
          const ExhaustedMemory exhausted(size);
          static_cast<void>(operation.act());
        } catch (const std::bad_alloc&) {
          hasThrown = true;
        }
        operation.prepare();
        return operation.act() != operation.right ? lasting : hasThrown ? handled : nothingFailed;
      });
      EXPECT_LE(outcome, handled) << operation.name << " with " << size << " bytes: " << outcome;
      if (outcome == handled) ++failures;
    }
  }
  EXPECT_GT(failures, 30);
}

// If allocations fail right after the module's check for free memory, ICU never tries again. Texts that need its
// tables then throw, and no other text is affected.
TEST(Memory, ICUDoesNotRecoverFromAFailureOfItsFirstUse) {
  if (!canAllocationsFail()) GTEST_SKIP() << "the sanitizer's allocations cannot be made to fail";
  // ICU 78 copies a locale that it could not allocate.
  constexpr bool canICUCrash = U_ICU_VERSION_MAJOR_NUM >= 78;
  const testing::TemporaryDirectory directory;
  for (const Operation& operation : operationsIn(directory.path())) {
    if (operation.use != Use::firstOfICU) continue;
    Outcome outcome = handled;
    for (int before = 0; outcome == handled; ++before) {
      outcome = outcomeElsewhere([&]() noexcept {
        operation.prepare();
        leaveNoRoom();
        begin({Kind::allocation, ENOMEM, false}, before);
        const auto textOrNothing = [&] {
          try {
            return operation.act();
          } catch (const std::bad_alloc&) {
            return std::string(operation.right);
          }
        };
        const std::string during = textOrNothing();
        if (during != operation.right && during != operation.quiet) return wrong;
        const bool hasFailed = end();
        if (textOrNothing() != operation.right) return lasting;
        return !isAllRight() ? lasting : hasFailed ? handled : nothingFailed;
      });
      if (outcome == crashed && canICUCrash) outcome = handled;
      EXPECT_LE(outcome, handled) << operation.name << " at " << before << ": " << outcome;
    }
  }
}

}  // namespace
}  // namespace zk::faults
