#pragma once

#include <ZKStrings/tests/faults/Failures.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace zk::faults {

/// The result of one try, from best to worst.
enum Outcome {
  nothingFailed,
  handled,  ///< a failure was injected, and the result is a documented one
  wrong,    ///< the result is not a documented one
  lasting,  ///< the result is still wrong without an injected failure
  crashed,
};

/// Runs `act` in a child process, which must end within a minute, and returns the outcome. `mayTrap` is whether the
/// module may stop the process.
template <class Act>
Outcome outcomeElsewhere(Act act, bool mayTrap = false) {
  constexpr unsigned kSeconds = 60;
  const pid_t child = fork();
  if (child == 0) {
    alarm(kSeconds);
    _exit(act());
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status)) return static_cast<Outcome>(WEXITSTATUS(status));
  const bool isTrapped = WTERMSIG(status) == SIGILL || WTERMSIG(status) == SIGTRAP;
  return mayTrap && isTrapped ? handled : crashed;
}

/// Whether allocations can be made to fail. Sanitizers have their own allocator.
[[nodiscard]] inline bool canAllocationsFail() {
  begin({Kind::allocation, ENOMEM, false}, 0);
  void* const volatile memory = std::malloc(1);
  std::free(memory);
  return end();
}

}  // namespace zk::faults
