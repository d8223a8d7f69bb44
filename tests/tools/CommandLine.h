#pragma once

#include <ZKStrings/tests/tools/TemporaryProject.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <sys/wait.h>

namespace zk::testing {

/// What a command answered: its exit status and what it printed.
struct Answer {
  int status;
  std::string output;
};

inline Answer outputOf(const std::string& command) {
  std::FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer;
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe))
    output.append(buffer.data(), size);
  return {WEXITSTATUS(pclose(pipe)), output};
}

/// The command with its project and `arguments`, for a shell to which no character in a path means anything.
inline std::string inShell(const TemporaryProject& project, const std::string& arguments) {
  setenv("ZK_COMMAND", ZK_COMMAND, 1);
  setenv("ZK_ROOT", project.root().c_str(), 1);
  return "export LC_ALL=C; \"$ZK_COMMAND\" --root \"$ZK_ROOT\" " + arguments;
}

/// What the built command answers to `arguments`, in a pipe.
inline Answer answerTo(const TemporaryProject& project, const std::string& arguments) {
  return outputOf(inShell(project, arguments) + " 2>&1");
}

}  // namespace zk::testing
