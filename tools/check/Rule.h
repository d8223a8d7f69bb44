#pragma once

#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

/// A rule of `check`.
struct Rule {
  std::string_view name;  ///< the name that switches it off
  Severity severity;
  std::string_view summary;  ///< what it finds
};

/// A place where a rule is broken. The checker adds file, rule and severity.
struct Finding {
  Position at;
  std::string message;                ///< what is wrong; what to do
  const TableEntry* entry = nullptr;  ///< the entry whose comments can switch the rule off
};

class Findings {
 public:
  /// Adds a finding that does not belong to an entry.
  void add(Position at, std::string message) { all_.push_back({at, std::move(message)}); }
  /// Adds a finding for the text of `entry`, or for the place `at` in it.
  void add(const TableEntry& entry, std::string message) { add(entry, entry.textAt, std::move(message)); }
  void add(const TableEntry& entry, Position at, std::string message) {
    all_.push_back({at, std::move(message), &entry});
  }

  [[nodiscard]] std::vector<Finding>& all() { return all_; }

 private:
  std::vector<Finding> all_;
};

/// A rule and the function that finds where a `Subject` breaks it.
template <class Subject>
struct RuleFor : Rule {
  void (*find)(const Subject& subject, Findings& findings);
};

}  // namespace zk::tools
