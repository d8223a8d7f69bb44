#pragma once

#include <string_view>

namespace zk::tools {

/// The page before and after its data. The build makes both from the files of this folder.
extern const std::string_view kPageBeforeData;
extern const std::string_view kPageAfterData;

}  // namespace zk::tools
