#include <ZKStrings/tests/tools/TemporaryProject.h>

#include <array>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

namespace {

using zk::testing::TemporaryProject;

struct Answer {
  int status;
  std::string output;
};

/// What the built command answers to `arguments`, in a pipe.
Answer answerTo(const TemporaryProject& project, const std::string& arguments) {
  const std::string command = ZK_COMMAND " --root " + project.root() + " " + arguments + " 2>&1";
  std::FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer;
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe))
    output.append(buffer.data(), size);
  return {WEXITSTATUS(pclose(pipe)), output};
}

TEST(TranslationCommandLine, EndsWithAStatusThatTellsTheGravestFault) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"*Info\";\n");
  project.write(TemporaryProject::table("fr"), "\"About\" = \"%{info}\";\n");
  project.write(TemporaryProject::table("nl"), "\"About\" = \"About\";\n");
  struct Case {
    const char* arguments;
    int status;
  };
  constexpr Case kCases[] = {
      {"check de --off missing-key", 0},
      {"check de --off missing-key --strict", 1},
      {"check --strict --off missing-key --off marks de", 0},
      {"check de fr --off missing-key", 1},
      {"check fr --off missing-key --off unknown-placeholder --strict", 0},
      {"check nl --off missing-key --notes --strict", 0},
      {"check xx", 1},
      {"check --off no-such-rule", 2},
      {"check --format xml", 2},
      {"check --rules", 0},
      {"coverage", 0},
      {"coverage --format json", 0},
      {"template", 2},
      {"template en", 1},
      {"template sv", 0},
      {"template sv", 1},
      {"--help", 0},
  };
  for (const auto& [arguments, status] : kCases) {
    const Answer answer = answerTo(project, arguments);
    EXPECT_EQ(answer.status, status) << arguments << "\n" << answer.output;
  }
}

TEST(TranslationCommandLine, AnswersPlainlyInAPipe) {
  const TemporaryProject project;
  project.write(TemporaryProject::table("de"), "\"About\" = \"*Info\";\n");
  EXPECT_EQ(
      answerTo(project, "check de --off missing-key").output,
      "resources/de.lproj/Localizable.strings:1:12: warning: the * marks do not pair up; open and close each "
      "part [marks]\n");
}

TEST(TranslationCommandLine, AnswersInJsonWhateverTheBytes) {
  const TemporaryProject project;
  EXPECT_EQ(nlohmann::json::parse(answerTo(project, "check --format json").output), nlohmann::json::array());
  project.write(TemporaryProject::table("de"), "\"Ab\xFF\" = \"\";\n");
  const auto faults = nlohmann::json::parse(answerTo(project, "check de --format json").output);
  ASSERT_EQ(faults.size(), 4u) << faults;
  const auto& encoding = faults[2];
  EXPECT_EQ(encoding["file"], "resources/de.lproj/Localizable.strings");
  EXPECT_EQ(encoding["line"], 1);
  EXPECT_EQ(encoding["column"], 4);
  EXPECT_EQ(encoding["severity"], "error");
  EXPECT_EQ(encoding["rule"], "encoding");
  EXPECT_FALSE(encoding["message"].empty());
}

}  // namespace
