// Tests of files that have owners, permissions and links, and of signals.

#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <csignal>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zk::tools {
namespace {

namespace fs = std::filesystem;

TEST(Files, KeepTheirPermissionsOwnersAndLinks) {
  const zk::testing::TemporaryDirectory project;
  project.write("real", "old");
  const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(project.path() + "/real", permissions);
  const bool isRoot = chown((project.path() + "/real").c_str(), 1234, 5678) == 0;
  fs::create_symlink("real", project.path() + "/link");
  writeFile(project.path(), "link", "new");
  EXPECT_TRUE(fs::is_symlink(project.path() + "/link"));
  EXPECT_EQ(readFile(project.path(), "real"), "new");
  EXPECT_EQ(fs::status(project.path() + "/real").permissions(), permissions);
  struct stat real = {};
  ASSERT_EQ(stat((project.path() + "/real").c_str(), &real), 0);
  EXPECT_EQ(real.st_uid == 1234U && real.st_gid == 5678U, isRoot);
}

TEST(Files, AreNotWrittenThroughLinksOutOfTheProject) {
  const zk::testing::TemporaryDirectory outside;
  outside.write("project/inside/a", "old");
  outside.write("project-2/a", "old");
  const std::string project = outside.path() + "/project";
  fs::create_symlink(outside.path() + "/project-2/a", project + "/file");
  fs::create_directory_symlink("../project-2", project + "/folder");
  fs::create_directory_symlink("inside", project + "/within");
  for (const std::string path :
       {"file", "folder/a", "folder/new", "folder/deep/new", "within/../../project-2/a"}) {
    for (const std::string& root : {project, project + "/"})
      EXPECT_THROW(writeFile(root, path, "new"), CommandFailed) << path;
    EXPECT_EQ(outside.files(), 3u) << path;
  }
  EXPECT_EQ(readFile(outside.path(), "project-2/a"), "old");
  writeFile(project + "/", "within/a", "new");
  EXPECT_EQ(readFile(project, "inside/a"), "new");
  writeFile("", project + "/file", "named by the user");
  EXPECT_EQ(readFile(outside.path(), "project-2/a"), "named by the user");
}

TEST(Files, AreMadeWithTheUsersMask) {
  const zk::testing::TemporaryDirectory project;
  const mode_t before = umask(027);
  writeFile(project.path(), "new", "");
  EXPECT_EQ(umask(before), 027u);
  EXPECT_EQ(fs::status(project.path() + "/new").permissions(), fs::perms(0640));
}

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
