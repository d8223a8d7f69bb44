// Tests of signals.

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Files.h>

#include <csignal>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zk::tools {
namespace {

TEST(Files, AreAllChangedOrNoneWhenASignalEndsTheProcess) {
  const zk::testing::TemporaryDirectory project;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    for (int delay = 0; delay < 8; ++delay) {
      writeFiles(project.path(), {{"a", ""}, {"b", ""}});
      std::signal(signal, SIG_DFL);  // a shell lets its background jobs ignore some signals
      const pid_t writer = fork();
      ASSERT_NE(writer, -1);
      if (writer == 0) {
        for (std::string bytes;; bytes += 'x') writeFiles(project.path(), {{"a", bytes}, {"b", bytes}});
      }
      usleep(static_cast<useconds_t>(2000 + 100 * delay));
      kill(writer, signal);
      waitpid(writer, nullptr, 0);
      EXPECT_EQ(readFile(project.path(), "a"), readFile(project.path(), "b")) << signal;
      ASSERT_EQ(project.files(), 2u) << signal;
    }
  }
}

}  // namespace
}  // namespace zk::tools
