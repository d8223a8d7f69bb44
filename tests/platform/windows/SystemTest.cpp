// Tests for Windows only.

#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/system/windows/Text.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>
#include <windows.h>

namespace zk {
namespace {

using testing::TemporaryDirectory;

/// A directory with a table whose text for "a" is "b". Unlike std::filesystem, it is made and removed without
/// limits for its path.
class TableDirectory {
 public:
  explicit TableDirectory(std::string path)
      : path_(std::move(path)), table_(systemPath(path_ + "/Localizable.strings")) {
    CreateDirectoryW(systemPath(path_).c_str(), nullptr);
    const HANDLE file = CreateFileW(table_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    constexpr std::string_view kTable = "\"a\" = \"b\";\r\n";
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file, kTable.data(), kTable.size(), &written, nullptr)) << path_;
    CloseHandle(file);
  }
  TableDirectory(const TableDirectory&) = delete;
  TableDirectory& operator=(const TableDirectory&) = delete;
  ~TableDirectory() {
    DeleteFileW(table_.c_str());
    RemoveDirectoryW(systemPath(path_).c_str());
  }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  std::wstring table_;
};

std::string textIn(const std::string& path) {
  const Bundle* const bundle = Bundle::initWithPath(path);
  return std::string(bundle ? bundle->localizedStringForKey("a", "no text") : "no directory");
}

TEST(System, MakesAbsolutePathsWithoutLimits) {
  const std::pair<std::string_view, std::wstring_view> cases[] = {
      {"C:/a/b", LR"(\\?\C:\a\b)"},
      {"d:\\a\\..\\con.lproj\\.\\x", LR"(\\?\d:\con.lproj\x)"},
      {"//server/share/a", LR"(\\?\UNC\server\share\a)"},
      {R"(\\?\C:\a)", LR"(\\?\C:\a)"},
      {R"(\\.\pipe\a)", LR"(\\.\pipe\a)"},
      {"C:/тексты/\xFF",
       LR"(\\?\C:\тексты\)"
       L"\uFFFD"},
  };
  for (const auto& [path, expected] : cases) EXPECT_TRUE(systemPath(std::string(path)) == expected) << path;
  EXPECT_TRUE(systemPath("a").ends_with(LR"(\a)") && systemPath("a").starts_with(LR"(\\?\)"));
}

TEST(System, RemovesDotsFromPaths) {
  EXPECT_EQ(normalPath("C:/a/./b/../c"), "C:\\a\\c");
  EXPECT_EQ(normalPath(R"(\\server\share\a\..\b)"), R"(\\server\share\b)");
}

TEST(System, OpensAnyDirectory) {
  const TemporaryDirectory directory;
  for (const std::string& name : {std::string("con.lproj"), std::string("тексты"), std::string(200, 'x')}) {
    const TableDirectory made(directory.path() + "/" + name);
    EXPECT_EQ(textIn(made.path()), "b") << name;
  }
  const TableDirectory outer(directory.path() + "/" + std::string(150, 'x'));
  const TableDirectory inner(outer.path() + "/Каталог " + std::string(150, 'x'));
  EXPECT_EQ(textIn(inner.path()), "b");
}

TEST(System, AReservedNameIsAName) {
  const TemporaryDirectory directory;
  const TableDirectory reserved(directory.path() + "/con.lproj");
  const Bundle& bundle = *Bundle::initWithPath(directory.path());
  ASSERT_TRUE(bundle.pathForResource("con", "lproj"));
  const Bundle* const opened = Bundle::initWithPath(*bundle.pathForResource("con", "lproj"));
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->localizedStringForKey("a", ""), "b");
}

// Listed names are compared by bytes. For other names, the file system decides.
TEST(System, ComparesListedNamesWithCase) {
  const TemporaryDirectory directory;
  const TableDirectory german(directory.path() + "/De.lproj");
  const Bundle& bundle = *Bundle::initWithPath(directory.path());
  EXPECT_TRUE(bundle.pathForResource("De", "lproj"));
  EXPECT_FALSE(bundle.pathForResource("de", "lproj"));
  EXPECT_TRUE(bundle.URLForResource("DE", "lproj"));
}

TEST(System, FileNamesCannotLeaveTheDirectory) {
  for (const char* name : {"a\\b", "C:", "a:stream", "..", "a/b"}) EXPECT_FALSE(isFileName(name)) << name;
  EXPECT_TRUE(isFileName("con.json"));
}

TEST(System, ReadsWhatAnotherProgramHasOpen) {
  const TemporaryDirectory directory;
  const std::string path = directory.write("file", "text");
  const auto open = [&](DWORD shared) {
    return CreateFileW(systemPath(path).c_str(), GENERIC_READ | GENERIC_WRITE, shared, nullptr, OPEN_EXISTING,
                       0, nullptr);
  };
  const HANDLE editor = open(FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_EQ(contentsOfFile(path), "text");
  CloseHandle(editor);
  const HANDLE alone = open(0);
  std::error_code failure;
  EXPECT_EQ(contentsOfFile(path, failure), std::nullopt);
  EXPECT_TRUE(isTemporary(failure)) << failure.message();
  CloseHandle(alone);
  EXPECT_EQ(contentsOfFile(path), "text");
}

TEST(System, ReadsOnlyRegularFiles) {
  EXPECT_EQ(contentsOfFile("NUL"), std::nullopt);
  EXPECT_EQ(contentsOfFile(R"(\\.\NUL)"), std::nullopt);
  std::error_code failure;
  EXPECT_TRUE(entriesOf(R"(\\no-such-server\share)", failure).empty());
  EXPECT_TRUE(failure);
}

TEST(System, TheMainBundleIsTheDirectoryOfTheExecutable) {
  EXPECT_TRUE(mainBundle().URLForResource("zk_module_tests", "exe"));
}

TEST(System, TheSettingsAreTheUsersWithoutAnEnvironment) {
  for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
  wchar_t name[LOCALE_NAME_MAX_LENGTH];
  ASSERT_NE(GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH), 0);
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), toUTF8(name));
  ASSERT_FALSE(Locale::preferredLanguages().empty());
  EXPECT_EQ(Locale::preferredLanguages()[0].substr(0, 2), toUTF8(name).substr(0, 2));
}

}  // namespace
}  // namespace zk
