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

std::size_t filesIn(const std::string& directory) {
  std::size_t files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(directory))
    files += entry.is_regular_file() ? 1U : 0U;
  return files;
}

TEST(Files, AreAllChangedOrNone) {
  const zk::testing::TemporaryDirectory project;
  project.write("a", "old a");
  project.write("folder/inside", "x");
  // What stands where a file should go, or where its folder should: a folder, a file.
  for (const char* obstacle : {"folder", "a/below"}) {
    EXPECT_THROW(writeFiles(project.path(),
                            {{"a", "new a"}, {"deep/er/b", "new b"}, {"deep/c", "c"}, {obstacle, "d"}}),
                 CommandFailed);
    EXPECT_EQ(readFile(project.path(), "a"), "old a") << obstacle;
    EXPECT_EQ(filesIn(project.path()), 2u) << obstacle;
    EXPECT_FALSE(fs::exists(project.path() + "/deep")) << obstacle;
  }
  // What shows only when others are in their places already: a folder that a later file needs.
  EXPECT_THROW(writeFiles(project.path(), {{"a", "new a"}, {"b", "new b"}, {"c", "c"}, {"c/d", "d"}}),
               CommandFailed);
  EXPECT_EQ(readFile(project.path(), "a"), "old a");
  EXPECT_EQ(filesIn(project.path()), 2u);
  EXPECT_FALSE(fs::exists(project.path() + "/c"));
  writeFiles(project.path(), {{"a", "new a"}, {"deep/er/b", "new b"}});
  EXPECT_EQ(readFile(project.path(), "a") + readFile(project.path(), "deep/er/b"), "new anew b");
  EXPECT_EQ(filesIn(project.path()), 3u);
}

TEST(Files, KeepTheirPermissionsAndLinks) {
  const zk::testing::TemporaryDirectory project;
  project.write("real", "old");
  const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(project.path() + "/real", permissions);
  fs::create_symlink("real", project.path() + "/link");
  writeFile(project.path(), "link", "new");
  EXPECT_TRUE(fs::is_symlink(project.path() + "/link"));
  EXPECT_EQ(readFile(project.path(), "real"), "new");
  EXPECT_EQ(fs::status(project.path() + "/real").permissions(), permissions);
}

TEST(Files, LeaveOthersBesideThemAlone) {
  const zk::testing::TemporaryDirectory project;
  project.write("a", "old");
  project.write("a.new", "the user's own");
  writeFile(project.path(), "a", "new");
  EXPECT_EQ(readFile(project.path(), "a") + ", " + readFile(project.path(), "a.new"), "new, the user's own");
  EXPECT_EQ(filesIn(project.path()), 2u);
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
      const pid_t writer = fork();
      ASSERT_NE(writer, -1);
      if (writer == 0) {
        std::signal(signal, SIG_DFL);  // a shell has what it starts in the background ignore some
        for (std::string bytes;; bytes += 'x') writeFiles(project.path(), {{"a", bytes}, {"b", bytes}});
      }
      usleep(static_cast<useconds_t>(2000 + 100 * delay));
      kill(writer, signal);
      waitpid(writer, nullptr, 0);
      EXPECT_EQ(readFile(project.path(), "a"), readFile(project.path(), "b")) << signal;
      ASSERT_EQ(filesIn(project.path()), 2u) << signal;
    }
  }
}

}  // namespace
}  // namespace zk::tools
