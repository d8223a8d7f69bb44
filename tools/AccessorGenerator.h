#pragma once

#include <ZKStrings/tools/Catalogue.h>
#include <ZKStrings/tools/Table.h>

#include <string>

namespace zk::tools {

/// The generated sources: what catalogue/ZKStrings.h and catalogue/ZKStrings.cpp hold.
struct Accessors {
  std::string header;
  std::string source;

  static constexpr const char* kHeaderFile = "catalogue/ZKStrings.h";
  static constexpr const char* kSourceFile = "catalogue/ZKStrings.cpp";
};

/// One accessor for each entry. The comments of counted entries show their plural forms, which `base`, the
/// English table, holds.
[[nodiscard]] Accessors generateAccessors(const Catalogue& catalogue, const Table& base);

/// The call of the accessor of `entry`: "zk::ZKStrings::badgeCount_Badges(badgeCount, count)".
[[nodiscard]] std::string accessorCall(const Entry& entry);

}  // namespace zk::tools
