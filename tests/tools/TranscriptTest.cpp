#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tests/CommandOutput.h>
#include <ZKStrings/tests/tools/TemporaryProject.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

// A transcript shows what the command answers in a terminal:
//   - Lines with "  $ " are commands, which lines with "  > " continue.
//   - The lines below a command are its output, with carriage returns as "\r". "  ..." continues a long line.
//   - "  [1]" is its status, if that is not 0.
//   - Lines without an indent are remarks.
// Each command runs in a new shell that has the functions of transcript.sh, in one copy of small-project/. $ZK_SHIPPED is
// the root of the source tree. With ZK_RECORD in the environment, the test also records the transcripts again. With
// ZK_COMMAND, it runs that program instead of the one that was built. Those in posix/ do not run under Wine.

namespace {

using namespace zk::testing;
using zk::tools::linesOf;

namespace fs = std::filesystem;

constexpr std::string_view kCommand = "  $ ";
constexpr std::string_view kMore = "  > ";
constexpr std::string_view kFold = "  ...";
constexpr std::size_t kMaxLine = 110;

std::vector<fs::path> transcripts() {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::recursive_directory_iterator(ZK_PROJECT_ROOT "/tests/tools"))
    if (entry.path().extension() == ".transcript") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  return paths;
}

/// `line` of an answer as a transcript shows it.
std::string shownLine(std::string_view line) {
  std::string shown;
  std::string_view indent = "  ";
  while (indent.size() + line.size() > kMaxLine) {
    const std::size_t room = kMaxLine - indent.size();
    const std::size_t blank = line.rfind(' ', room);
    const std::size_t cut = blank == std::string_view::npos || blank < room / 2 ? room : blank;
    shown += fmt::format("{}{}\n", indent, line.substr(0, cut));
    line.remove_prefix(cut);
    indent = kFold;
  }
  return shown += fmt::format("{}{}\n", indent, line);
}

/// The output and status of `command` as a transcript shows them.
std::string shownAnswer(const std::string& folder, const std::string& command) {
  setenv("ZK_COMMAND", ZK_COMMAND, 0);
  setenv("ZK_FOLDER", folder.c_str(), 1);
  setenv("ZK_SHIPPED", ZK_PROJECT_ROOT, 1);
  Answer answer = outputOf(
      "cd \"$ZK_FOLDER\" || exit; exec 2>&1; set -u; export LC_ALL=C; . "
      "\"$ZK_SHIPPED\"/tests/tools/transcript.sh\n" +
      command);
  zk::replaceOccurrences(answer.output, "Z:" + folder, folder);  // as Wine shows it
  zk::replaceOccurrences(answer.output, folder, "$PWD");
  zk::replaceOccurrences(answer.output, "\r", "\\r");
  std::string shown;
  for (const std::string_view line : linesOf(answer.output)) shown += shownLine(line);
  if (!answer.output.empty() && answer.output.back() != '\n') shown += "  (no line end)\n";
  if (answer.status != 0) shown += fmt::format("  [{}]\n", answer.status);
  return shown;
}

/// `transcript` with the current answers of its commands.
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
