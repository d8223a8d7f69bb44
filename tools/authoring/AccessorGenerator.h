#pragma once

#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/support/Files.h>

#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// Generates the header and the source file with one accessor for each entry, in the class that the settings name.
[[nodiscard]] std::vector<FileChange> generateAccessors(const Catalogue& catalogue);

/// The first line of generated files.
inline constexpr std::string_view kGeneratedNotice =
    "// Generated from catalogue/entries.json by `zkstrings generate`.";

/// The name of the accessor of `entry`. It gets an underscore if it would be the name of the class.
[[nodiscard]] std::string accessorOf(const Entry& entry, const CatalogueName& name);

/// The call of the accessor of `entry`: "zk::ZKStrings::badgeCount_Badges(badgeCount, count)".
[[nodiscard]] std::string accessorCall(const Entry& entry, const CatalogueName& name);

}  // namespace zk::tools
