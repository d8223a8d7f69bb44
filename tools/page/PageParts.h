#pragma once

#include <string_view>

namespace zk::tools {

/// The page before and behind its data, made of the files of this folder when the command is built.
extern const std::string_view kPageBeforeData;
extern const std::string_view kPageBehindData;

}  // namespace zk::tools
