#pragma once

#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/support/Position.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zk::tools {

/// The country list, as far as it can be read.
struct CountryFile {
  static constexpr const char* kFile = "resources/countries.json";

  struct Element {
    Position at;
    Value value;
  };
  std::vector<Element> elements;
  std::optional<Finding> fault;  ///< what keeps the file from being an array

  /// Whether the project at `root` has a list or, as the module's own, must have one.
  [[nodiscard]] static bool isExpected(const std::string& root, bool isModule);
  /// Reads the list of the project at `root`. A file that cannot be read has a fault.
  [[nodiscard]] static CountryFile read(const std::string& root);
  /// The same of the bytes of such a file.
  [[nodiscard]] static CountryFile parse(const std::string& bytes);
};

[[nodiscard]] std::span<const RuleFor<CountryFile>> countryRules();

}  // namespace zk::tools
