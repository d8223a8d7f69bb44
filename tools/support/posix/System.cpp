#include <ZKStrings/tools/support/System.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zk::tools {

bool isTerminal(std::FILE* stream) {
  return isatty(fileno(stream)) == 1;
}

std::shared_ptr<void> holdBackSignals() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) sigaddset(&ends, signal);
  const auto restore = [](sigset_t* before) {
    pthread_sigmask(SIG_SETMASK, before, nullptr);
    delete before;
  };
  const std::shared_ptr<sigset_t> before(new sigset_t, restore);
  pthread_sigmask(SIG_BLOCK, &ends, before.get());
  return before;
}

bool lockFolder(const std::filesystem::path& folder, void (*beforeWaiting)()) {
  // The folder stays open until the process ends, which releases the lock.
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (flock(opened, LOCK_EX | LOCK_NB) == 0) return true;
  if (errno != EWOULDBLOCK) return false;  // a file system without locks, or no such folder yet
  beforeWaiting();
  return flock(opened, LOCK_EX) == 0;
}

bool createFile(const std::filesystem::path& file, bool isPrivate) {
  const int created = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, isPrivate ? 0600 : 0666);
  return created >= 0 && close(created) == 0;
}

bool mayWrite(const std::filesystem::path& file) {
  return access(file.c_str(), W_OK) == 0;
}

void copyAttributes(const std::filesystem::path& from, const std::filesystem::path& to) {
  struct stat status = {};
  if (stat(from.c_str(), &status) != 0) return;
  static_cast<void>(!chown(to.c_str(), status.st_uid, status.st_gid));  // only root may always do this
  chmod(to.c_str(), status.st_mode & 07777U);
}

bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace zk::tools
