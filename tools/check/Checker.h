#pragma once

#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

struct CheckOptions {
  std::vector<std::string> languages;  ///< the tables to check; without any, all of them and the country list
  std::vector<std::string> off;        ///< names of rules to leave out
  bool notes = false;                  ///< whether rules apply that only note
};

struct CheckResult {
  Diagnostics diagnostics;    ///< sorted by file and place
  std::size_t tables = 0;     ///< how many were checked
  std::size_t countries = 0;  ///< those of the list, if it was checked
};

/// All rules, errors first.
[[nodiscard]] std::vector<Rule> checkRules();
/// Returns why `name` is not a rule and what to write instead; empty if it is a rule.
[[nodiscard]] std::string errorInRuleName(std::string_view name);

/// Finds all that is wrong or missing in the catalogue, the tables and the country list of the project at
/// `root`. A comment `/* check: off RULE */` before an entry switches a rule off for the entry. A
/// file that cannot be read is a fault like others; without a catalogue, texts are compared with nothing.
/// Throws `CommandFailed` when resources/ cannot be listed.
[[nodiscard]] CheckResult check(const std::string& root, const CheckOptions& options);

/// Finds the same in `table` alone, of `language`, which need not be in a file yet. `base` is the English one.
[[nodiscard]] Diagnostics checkTable(const std::string& language, const Table& table,
                                     const Catalogue& catalogue, const Table& base);

}  // namespace zk::tools
