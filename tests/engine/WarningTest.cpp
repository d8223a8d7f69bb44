#include <ZKStrings/tests/CommandOutput.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zk {
namespace {

TEST(Substitution, TheCompilerWarnsOfTextsThatAreDestroyedTooEarly) {
  if (testing::outputOf("clang++ --version 2>&1").status != 0) GTEST_SKIP() << "needs Clang";
  const testing::TemporaryDirectory directory;
  const std::string five = "const std::string five = std::to_string(5); ";
  const std::pair<std::string, bool> cases[] = {
      {"const zk::Substitutions pairs = {{\"n\", std::to_string(5)}};", true},
      {"const zk::Substitutions pairs = {{\"a\", \"b\"}, {std::to_string(5), \"c\"}};", true},
      {"const zk::Substitutions pairs = std::map<std::string, std::string>();", true},
      {"const zk::Substitutions::Pair pair = {\"n\", std::to_string(5)};", true},
      {five + "const zk::Substitutions pairs = {{\"a\", \"b\"}, {\"n\", five}};", false},
      {"return zk::localizedString(\"a\", \"b\", 5, {{\"n\", std::to_string(5)}});", false},
  };
  for (const auto& [code, isWarning] : cases) {
    const std::string file = directory.write(
        "code.cpp", "#include <ZKStrings/engine/StringLookup.h>\n#include <map>\nstd::string f() { " + code +
                        " return {}; }");
    const testing::Answer answer = testing::outputOf(
        "clang++ -std=c++20 -Wall -Wno-unused -Werror -fsyntax-only -isystem" ZK_INCLUDE_DIRECTORY " " +
        file + " 2>&1");
    EXPECT_EQ(answer.status != 0, isWarning) << code << "\n" << answer.output;
    EXPECT_EQ(answer.output.find("[-Werror,-Wdangling]") != std::string::npos, isWarning) << answer.output;
  }
}

}  // namespace
}  // namespace zk
