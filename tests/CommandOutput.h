#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <string>

#include <sys/wait.h>

namespace zk::testing {

/// What a command answered: its exit status and what it printed.
struct Answer {
  int status;
  std::string output;
};

/// What the shell's command `command` answers.
inline Answer outputOf(const std::string& command) {
  std::FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer;
  while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), pipe))
    output.append(buffer.data(), size);
  return {WEXITSTATUS(pclose(pipe)), output};
}

}  // namespace zk::testing
