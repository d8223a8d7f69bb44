#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/project/Table.h>

#include <string>
#include <string_view>

namespace zk::tools {

/// The generated sources: what the header and the source file of a `CatalogueName` hold.
struct Accessors {
  std::string header;
  std::string source;
};

/// One accessor for each entry, in the class that `name` says. The comments of counted entries show their
/// plural forms, which `base`, the English table, holds.
[[nodiscard]] Accessors generateAccessors(const Catalogue& catalogue, const Table& base,
                                          const CatalogueName& name);

/// How generated files begin.
inline constexpr std::string_view kGeneratedNotice =
    "// Generated from catalogue/entries.json by `zkstrings generate`.";

/// The name of the accessor of `entry`. One that is named like the class would be its constructor and gets an underscore.
[[nodiscard]] std::string accessorOf(const Entry& entry, const CatalogueName& name);

/// The call of the accessor of `entry`: "zk::ZKStrings::badgeCount_Badges(badgeCount, count)".
[[nodiscard]] std::string accessorCall(const Entry& entry, const CatalogueName& name);

}  // namespace zk::tools
