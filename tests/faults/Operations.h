#pragma once

#include <span>
#include <string>

namespace zk::faults {

/// When an operation can be tried again in the same process.
enum class Use {
  first,       ///< only once in a process, so each try needs a new one
  firstOfICU,  ///< like `first`, because ICU sets up its tables then
  later,
};

/// Something that an app does with the module.
struct Operation {
  const char* name;
  Use use = Use::first;
  void (*prepare)() = [] {};  ///< runs before the injected failure
  std::string (*act)();
  const char* right;
  const char* quiet = "";    ///< the other permitted result if a system call fails
  const char* refused = "";  ///< the other permitted result after EACCES, then and later
};

/// Returns all operations. They create their own bundles in `directory`, which must be empty.
[[nodiscard]] std::span<const Operation> operationsIn(const std::string& directory);

/// Whether the texts of the module and of the bundle in `directory` are right.
[[nodiscard]] bool isAllRight();

}  // namespace zk::faults
