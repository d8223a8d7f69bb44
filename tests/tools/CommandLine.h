#pragma once

#include <ZKStrings/tests/CommandOutput.h>
#include <ZKStrings/tests/tools/TemporaryProject.h>

#include <cstdlib>
#include <string>

namespace zk::testing {

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
