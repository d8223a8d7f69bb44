// Tests for POSIX systems only.

#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zk {
namespace {

TEST(System, ReadsOnlyRegularFiles) {
  const testing::TemporaryDirectory directory;
  const std::string fifo = directory.path() + "/fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(contentsOfFile(fifo), std::nullopt);
  EXPECT_EQ(contentsOfFile("/dev/zero"), std::nullopt);
  const std::string huge = directory.write("huge", "");
  std::filesystem::resize_file(huge, std::uintmax_t{1} << 40);
  EXPECT_EQ(contentsOfFile(huge), std::nullopt);
  const auto endsEarly = contentsOfFile("/sys/kernel/uevent_seqnum");  // whose size is that of a page
  EXPECT_LT(endsEarly.value_or("").size(), 100u);
}

TEST(System, TheMainBundleIsTheDirectoryOfTheExecutable) {
  EXPECT_EQ(mainBundle().path(), std::filesystem::read_symlink("/proc/self/exe").parent_path());
}

TEST(System, TheSettingsAreEnglishWithoutAnEnvironment) {
  for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
  EXPECT_EQ(Locale::autoupdatingCurrent().identifier(), "en");
  ASSERT_EQ(Locale::preferredLanguages().size(), 1u);
  EXPECT_EQ(Locale::preferredLanguages()[0], "en");
}

}  // namespace
}  // namespace zk
