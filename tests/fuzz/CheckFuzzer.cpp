#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>
#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/check/Glossary.h>
#include <ZKStrings/tools/project/Catalogue.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <nlohmann/json.hpp>

/// Runs `zkstrings check` on a project whose files are the parts of the input.

namespace zk::fuzzing {

namespace {

using namespace zk::tools;

CheckResult checked(const std::string& root, std::size_t bytes) {
  const TimeLimit limit(bytes);
  CheckOptions options;
  options.notes = true;
  return check(root, options);
}

void tryDiagnostics(Diagnostics diagnostics) {
  constexpr std::size_t kMost = 100;  // each is tried alone
  diagnostics.resize(std::min(diagnostics.size(), kMost));
  for (const Diagnostic& diagnostic : diagnostics) {
    const std::string line = formatted(diagnostic, false);
    require(diagnostic.line > 0 && diagnostic.column > 0 && !diagnostic.message.empty(),
            "this has no place or message: " + line);
    require(line.find_first_of("\n\r\x1B") == std::string::npos, "this is not one line: " + line);
  }
  require(nlohmann::json::accept(toJson(diagnostics)), "this is not JSON: " + toJson(diagnostics));
}

bool concernsTable(const Diagnostic& diagnostic, const std::string& file) {
  return diagnostic.file == file &&
         (diagnostic.rule == Table::kSyntax || diagnostic.rule == Table::kEncoding);
}

/// The module reads a table if and only if the command reports nothing about its form.
void tryTable(const std::string& root, const std::string& language, const Diagnostics& diagnostics) {
  const Table table = Table::read(root, language);
  std::error_code unused;
  const StringTable read = StringTable::inFile(root + "/" + tablePath(language), unused);
  const bool hasErrors = std::any_of(
      diagnostics.begin(), diagnostics.end(),
      [&](const Diagnostic& diagnostic) { return concernsTable(diagnostic, tablePath(language)); });
  for (const auto& [key, place] : table.places) {
    require(read.find(key).has_value() != hasErrors, "check and the module disagree about " + key);
    require(hasErrors || read.find(key) == table.entries[place].text, "they read another text of " + key);
  }
}

}  // namespace

void test(std::string_view input) {
  static const testing::TemporaryDirectory directory;
  const std::vector<std::string> files = partsOf(input, 6);
  directory.write(tablePath("Base"), files[0]);
  directory.write(tablePath("de"), files[1]);
  directory.write(Catalogue::kFile, files[2]);
  directory.write("resources/countries.json", files[3]);
  directory.write(Glossary::kFile, files[4]);
  directory.write(CatalogueSettings::kFile, files[5].empty() ? R"({"name": "Texts"})" : files[5]);
  const CheckResult result = checked(directory.path(), input.size());
  tryDiagnostics(result.diagnostics);
  for (const char* language : {"Base", "de"}) tryTable(directory.path(), language, result.diagnostics);
}

}  // namespace zk::fuzzing
