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
  std::vector<std::string> languages;  ///< the tables to check (default: all tables and the country list)
  std::vector<std::string> off;        ///< names of rules that do not apply
  bool notes = false;                  ///< whether rules that only note apply
};

struct CheckResult {
  Diagnostics diagnostics;    ///< sorted by file and place
  std::size_t tables = 0;     ///< how many were checked
  std::size_t countries = 0;  ///< how many the list has, if it was checked
};

/// All rules, errors first.
[[nodiscard]] std::vector<Rule> checkRules();
/// Returns why `name` is not a rule and what to write instead; empty if it is a rule.
[[nodiscard]] std::string errorInRuleName(std::string_view name);

/// Checks the catalogue, the tables and the country list of the project at `root`. A comment `/* check: off RULE */`
/// before an entry switches a rule off for that entry. If the catalogue cannot be read, the rules that compare texts
/// with it do not apply. Throws `CommandFailed` if resources/ cannot be listed.
[[nodiscard]] CheckResult check(const std::string& root, const CheckOptions& options);

/// Checks `table`, of `language`, which need not be in a file yet, with the settings and glossary of the project at
/// `root`. Throws `CommandFailed` if the glossary is wrong.
[[nodiscard]] Diagnostics checkTable(const std::string& root, const std::string& language, const Table& table,
                                     const Catalogue& catalogue);

}  // namespace zk::tools
