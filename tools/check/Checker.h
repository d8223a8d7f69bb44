#pragma once

#include <ZKStrings/tools/Fault.h>
#include <ZKStrings/tools/check/Rule.h>

#include <string>
#include <vector>

namespace zk::tools {

struct CheckOptions {
  std::vector<std::string> languages;  ///< the tables to check; without any, all of them and the country list
  std::vector<std::string> off;        ///< names of rules to leave out
  bool notes = false;                  ///< whether rules apply that only note
};

/// All rules, errors first.
[[nodiscard]] std::vector<Rule> checkRules();

/// All that is wrong with the catalogue, the tables and the country list of the project at `root`, sorted by
/// file and place. A comment `/* check: off RULE */` before an entry switches a rule off for the entry. A
/// file that cannot be read is a fault like others; without a catalogue, texts are compared with nothing.
/// Throws `CommandFailed` when resources/ cannot be listed.
[[nodiscard]] Faults check(const std::string& root, const CheckOptions& options);

}  // namespace zk::tools
