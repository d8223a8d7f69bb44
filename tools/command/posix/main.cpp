#include <ZKStrings/tools/command/Subcommands.h>

#include <csignal>

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // so writing beyond a limit fails, with a message
  return zk::tools::runCommandLine({argv + 1, argv + argc});
}
