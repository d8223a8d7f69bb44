#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace zk::tools {
namespace {

namespace fs = std::filesystem;

TEST(Files, AreAllChangedOrNone) {
  const zk::testing::TemporaryDirectory project;
  project.write("a", "old a");
  project.write("folder/inside", "x");
  // A folder instead of a file, and a file instead of a folder.
  for (const char* obstacle : {"folder", "a/below"}) {
    EXPECT_THROW(writeFiles(project.path(),
                            {{"a", "new a"}, {"deep/er/b", "new b"}, {"deep/c", "c"}, {obstacle, "d"}}),
                 CommandFailed);
    EXPECT_EQ(readFile(project.path(), "a"), "old a") << obstacle;
    EXPECT_EQ(project.files(), 2u) << obstacle;
    EXPECT_FALSE(fs::exists(project.path() + "/deep")) << obstacle;
  }
  // A conflict that shows only after other files are renamed: a folder that a later file needs.
  EXPECT_THROW(writeFiles(project.path(), {{"a", "new a"}, {"b", "new b"}, {"c", "c"}, {"c/d", "d"}}),
               CommandFailed);
  EXPECT_EQ(readFile(project.path(), "a"), "old a");
  EXPECT_EQ(project.files(), 2u);
  EXPECT_FALSE(fs::exists(project.path() + "/c"));
  writeFiles(project.path(), {{"a", "new a"}, {"deep/er/b", "new b"}});
  EXPECT_EQ(readFile(project.path(), "a") + readFile(project.path(), "deep/er/b"), "new anew b");
  EXPECT_EQ(project.files(), 3u);
}

TEST(Files, LeaveOtherFilesAlone) {
  const zk::testing::TemporaryDirectory project;
  project.write("catalogue/a", "old");
  for (const char* own : {"a.zkstrings-", "a.zkstrings-1234567", ".zkstrings-123456"})
    project.write(std::string("catalogue/") + own, "the user's own");
  for (const char* left : {"README.md.zkstrings-123456", "resources/de.lproj/b.zkstrings-abcXYZ"})
    project.write(left, "left by a killed command");
  lockProject(project.path());
  writeFile(project.path(), "catalogue/a", "new");
  EXPECT_EQ(readFile(project.path(), "catalogue/a"), "new");
  EXPECT_EQ(project.files(), 4u);
}

}  // namespace
}  // namespace zk::tools
