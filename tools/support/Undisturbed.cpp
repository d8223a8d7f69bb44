#include <ZKStrings/tools/support/Undisturbed.h>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>

namespace zk::tools {

void keepOthersOut(const std::string& root) {
  // Open until the process ends, which gives the lock back. Where there are no locks, all goes on without.
  const int folder = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (flock(folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
  std::fputs("Another zkstrings changes this project; waiting for it.\n", stderr);
  flock(folder, LOCK_EX);
}

SignalsHeldBack::SignalsHeldBack() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) sigaddset(&ends, signal);
  pthread_sigmask(SIG_BLOCK, &ends, &before_);
}

SignalsHeldBack::~SignalsHeldBack() {
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace zk::tools
