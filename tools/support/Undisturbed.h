#pragma once

#include <csignal>
#include <string>

// What keeps the files of a project together while a command changes them.

namespace zk::tools {

/// Keeps other commands from changing the project at `root` until this process ends. Says so on standard error
/// when it has to wait for one that does.
void keepOthersOut(const std::string& root);

/// As long as it lives, the signals by which users and systems end a process wait.
class SignalsHeldBack {
 public:
  SignalsHeldBack();
  ~SignalsHeldBack();
  SignalsHeldBack(const SignalsHeldBack&) = delete;
  SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace zk::tools
