// Tests of files that another program has open.

#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <windows.h>

namespace zk::tools {
namespace {

HANDLE openedByAnEditor(const std::string& path) {
  const HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
  return file;
}

TEST(Files, AreReplacedWhenTheEditorClosesThem) {
  const zk::testing::TemporaryDirectory project;
  const HANDLE file = openedByAnEditor(project.write("тексты/b", "old"));
  std::thread editor([&] {
    Sleep(300);
    CloseHandle(file);
  });
  writeFile(project.path(), "тексты/b", "new");
  editor.join();
  EXPECT_EQ(readFile(project.path(), "тексты/b"), "new");
  EXPECT_EQ(project.files(), 1u);
}

TEST(Files, AreAllUnchangedIfTheEditorKeepsOneOpen) {
  const zk::testing::TemporaryDirectory project;
  project.write("a", "old");
  const HANDLE file = openedByAnEditor(project.write("тексты/b", "old"));
  try {
    writeFiles(project.path(), {{"a", "new"}, {"тексты/b", "new"}});
    ADD_FAILURE() << "a file was replaced while it was open";
  } catch (const CommandFailed& failed) {
    EXPECT_EQ(failed.diagnostics.front().file, "тексты/b");
    EXPECT_NE(failed.diagnostics.front().message.find("have it open"), std::string::npos);
  }
  CloseHandle(file);
  EXPECT_EQ(readFile(project.path(), "a") + readFile(project.path(), "тексты/b"), "oldold");
  EXPECT_EQ(project.files(), 2u);
}

}  // namespace
}  // namespace zk::tools
