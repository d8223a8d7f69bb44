#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tests/CommandOutput.h>
#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Position.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

// A transcript tells what the command answers in a terminal. Its lines are commands ("  $ "), which may go on ("  > "),
// below each what it prints, with carriage returns as "\r", and its status where that is not 0 ("  [1]"), and, at the
// margin, what is to be said about it. Each command has a shell of its own, in one copy of small-project/; what ships is
// in $ZK_SHIPPED. With ZK_RECORD in the environment, the transcripts are written anew as well.

namespace {

using namespace zk::testing;
using zk::tools::linesOf;

namespace fs = std::filesystem;

constexpr std::string_view kCommand = "  $ ";
constexpr std::string_view kMore = "  > ";

std::vector<fs::path> transcripts() {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::recursive_directory_iterator(ZK_PROJECT_ROOT "/tests/tools"))
    if (entry.path().extension() == ".transcript") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  return paths;
}

/// What `command` prints and its status, as a transcript shows them.
std::string shownAnswer(const std::string& folder, const std::string& command) {
  setenv("ZK_COMMAND", ZK_COMMAND, 1);
  setenv("ZK_FOLDER", folder.c_str(), 1);
  setenv("ZK_SHIPPED", ZK_PROJECT_ROOT, 1);
  Answer answer = outputOf(
      "cd \"$ZK_FOLDER\" || exit; exec 2>&1; set -u; export LC_ALL=C\n"
      "zkstrings() { \"$ZK_COMMAND\" \"$@\"; }\n" +
      command);
  zk::replaceOccurrences(answer.output, folder, "$PWD");
  zk::replaceOccurrences(answer.output, "\r", "\\r");
  std::string shown;
  for (const std::string_view line : linesOf(answer.output)) shown += fmt::format("  {}\n", line);
  if (!answer.output.empty() && answer.output.back() != '\n') shown += "  (no line end)\n";
  if (answer.status != 0) shown += fmt::format("  [{}]\n", answer.status);
  return shown;
}

/// The transcript, with what its commands answer now.
std::string playedAgain(const std::string& transcript) {
  const TemporaryProject project;
  const std::string folder = fs::canonical(project.root());
  std::string result;
  std::string command;
  const auto play = [&] {
    if (!command.empty()) result += shownAnswer(folder, command);
    command.clear();
  };
  for (const std::string_view line : linesOf(transcript)) {
    if (!line.starts_with(kMore)) play();
    const bool goesOn = !command.empty() && line.starts_with(kMore);
    if (goesOn || line.starts_with(kCommand)) {
      command.append(line.substr(kCommand.size())).append("\n");
    } else if (line.starts_with("  ")) {
      continue;
    }
    result.append(line).append("\n");
  }
  play();
  return result;
}

class Transcript : public ::testing::TestWithParam<fs::path> {};

TEST_P(Transcript, IsWhatTheCommandAnswers) {
  const std::string transcript = zk::tools::readFile("", GetParam());
  const std::string played = playedAgain(transcript);
  if (std::getenv("ZK_RECORD")) zk::tools::writeFile("", GetParam(), played);
  EXPECT_EQ(played, transcript);
}

INSTANTIATE_TEST_SUITE_P(Commands, Transcript, ::testing::ValuesIn(transcripts()), [](const auto& test) {
  const fs::path path = test.param;
  return path.parent_path().filename().string() + "_" + path.stem().string();
});

}  // namespace
