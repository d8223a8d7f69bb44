#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <map>
#include <string>
#include <vector>

namespace zk::tools {

/// The places where a program calls the accessors of a catalogue.
class Uses {
 public:
  /// Searches the source files (C++, Objective-C++) of the folders `directories` for calls of the accessors of
  /// `catalogue`: their names after the name of the class, or after an alias that one of the files declares with
  /// `using Alias = ...;`. Comments, strings and generated accessors do not count. Throws `std::invalid_argument` if
  /// the folders have no source file; no folders have no uses.
  Uses(const std::vector<std::string>& directories, const Catalogue& catalogue);

  /// The places that call the accessor of `entry`, with or without a count: "src/menu.cpp:12".
  [[nodiscard]] std::vector<std::string> of(const Entry& entry) const;
  /// Those places for people: "Used in src/menu.cpp:12, src/shop.cpp:3."; empty if there are none.
  [[nodiscard]] std::string noteOn(const Entry& entry) const;

 private:
  std::map<std::string, std::vector<std::string>> places_;  // by key
};

}  // namespace zk::tools
