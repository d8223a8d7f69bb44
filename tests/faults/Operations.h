#pragma once

#include <span>
#include <string>

namespace zk::faults {

/// Whether something is done once in the life of a process, so that each try needs a process of its own.
enum class Use {
  first,
  firstOfICU,  ///< also by ICU, which sets its tables up
  later,
};

/// Something that an app does with the module.
struct Operation {
  const char* name;
  Use use;
  void (*prepare)();  ///< before the failure
  std::string (*act)();
  const char* right;
  const char* quiet;    ///< what the failure of a call of the system may make of it
  const char* refused;  ///< and what a refusal may, also later: unlike the others it is an answer
};

/// All of them, with `directory` for bundles of their own; it is to be empty.
[[nodiscard]] std::span<const Operation> operationsIn(const std::string& directory);

/// Whether the texts of the module and of the bundle in that directory are what they should be.
[[nodiscard]] bool isAllRight();

}  // namespace zk::faults
