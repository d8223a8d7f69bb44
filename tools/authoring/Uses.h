#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <map>
#include <string>
#include <vector>

namespace zk::tools {

/// The places where a program calls the accessors of a catalogue.
class Uses {
 public:
  /// Searches the C++ and Objective-C++ files in `directories` for calls of the accessors of `catalogue` that are
  /// qualified with the class, or with an alias that a file declares by `using Alias = ...;`. Ignores comments, strings
  /// and generated accessors. Throws `std::invalid_argument` if there are directories but no source files.
  Uses(const std::vector<std::string>& directories, const Catalogue& catalogue);

  /// The places that call the accessor of `entry`, with or without a count: "src/menu.cpp:12".
  [[nodiscard]] std::vector<std::string> of(const Entry& entry) const;
  /// Those places for people: "Used in src/menu.cpp:12, src/shop.cpp:3."; empty if there are none.
  [[nodiscard]] std::string noteOn(const Entry& entry) const;

 private:
  std::map<std::string, std::vector<std::string>> places_;  // by key
};

}  // namespace zk::tools
