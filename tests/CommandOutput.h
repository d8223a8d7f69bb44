#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <string>

#include <sys/wait.h>

namespace zk::testing {

/// The exit status and the output of a command.
struct Answer {
  int status;
  std::string output;
};

/// Runs `command` in a shell.
inline Answer outputOf(const std::string& command) {
  std::FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer;
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe))
    output.append(buffer.data(), size);
  return {WEXITSTATUS(pclose(pipe)), output};
}

}  // namespace zk::testing
