#include <ZKStrings/tests/tools/CommandLine.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace zk::testing;

namespace fs = std::filesystem;

TEST(PageCommandLine, SaysWhatItDidOrWhatIsInTheWay) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"Info\";\n");
  struct Case {
    const char* arguments;
    int status;
    const char* output;
  };
  constexpr Case kCases[] = {
      {"page", 0, "texts.html. Open it in a browser."},
      {"page -o \"$ZK_ROOT/new/folder/all.html\"", 0, "all.html. Open it in a browser."},
      {"page -o /dev/null/all.html", 1, "all.html:1:1: error: the file cannot be written"},
      {"page -o \"$ZK_ROOT\"", 1, "error: the file cannot be written"},
      {"page more", 2, ""},
      {"lengths", 0, "de        About"},
      {"lengths German --limit 1", 0, "de        About"},
      {"lengths --limit 0", 0, " times"},
      {"lengths --limit -1", 2, "--limit: Value -1 not in range 0 to 1000000"},
      {"lengths xx", 1, "error: no table for \"xx\""},
      {"pseudo", 0, "An app that prefers one of them shows it."},
      {"pseudo -o \"$ZK_ROOT/resources\"", 1, "error: these resources are shipped"},
      {"pseudo -o /dev/null/resources", 1, "error: the resources cannot be written"},
  };
  for (const auto& [arguments, status, output] : kCases) {
    const Answer answer = answerTo(project, arguments);
    EXPECT_EQ(answer.status, status) << arguments << "\n" << answer.output;
    EXPECT_NE(answer.output.find(output), std::string::npos) << arguments << "\n" << answer.output;
  }
  for (const char* file : {"build/texts.html", "new/folder/all.html",
                           "build/pseudo/share/ZKStrings/xa.lproj/Localizable.strings"}) {
    EXPECT_TRUE(fs::is_regular_file(project.root() + "/" + file)) << file;
  }
}

}  // namespace
