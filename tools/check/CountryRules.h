#pragma once

#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/tools/check/Rule.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zk::tools {

/// The readable part of the country list.
struct CountryFile {
  static constexpr const char* kFile = "resources/countries.json";

  struct Element {
    Position at;
    Value value;
  };
  std::vector<Element> elements;
  std::optional<Finding> error;  ///< why the file is not an array of countries

  /// Returns whether the project at `root` must have a list: the module's own catalogue must, others may.
  [[nodiscard]] static bool isExpected(const std::string& root, bool isModule);
  /// Reads the list of the project at `root`.
  [[nodiscard]] static CountryFile read(const std::string& root);
};

[[nodiscard]] std::span<const RuleFor<CountryFile>> countryRules();

}  // namespace zk::tools
