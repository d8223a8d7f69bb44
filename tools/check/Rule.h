#pragma once

#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

/// A rule as users see it.
struct Rule {
  std::string_view name;  ///< under which it can be switched off
  Severity severity;
  std::string_view summary;  ///< what it finds
};

/// A place where a rule is broken. Rules say no more than that; who applies them knows file, name and
/// severity.
struct Finding {
  Position at;
  std::string message;                ///< what is wrong; what to do
  const TableEntry* entry = nullptr;  ///< the entry whose comment can switch the rule off
};

class Findings {
 public:
  /// For what is no entry's fault.
  void add(Position at, std::string message) { all_.push_back({at, std::move(message)}); }
  /// For the text of `entry`, or the place `at` in it.
  void add(const TableEntry& entry, std::string message) { add(entry, entry.textAt, std::move(message)); }
  void add(const TableEntry& entry, Position at, std::string message) {
    all_.push_back({at, std::move(message), &entry});
  }

  [[nodiscard]] std::vector<Finding>& all() { return all_; }

 private:
  std::vector<Finding> all_;
};

/// A rule and how to find where `Subject` breaks it.
template <class Subject>
struct RuleFor : Rule {
  void (*find)(const Subject& subject, Findings& findings);
};

}  // namespace zk::tools
