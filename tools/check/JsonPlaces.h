#pragma once

#include <ZKStrings/tools/support/Position.h>

#include <string>

#include <nlohmann/json.hpp>

namespace zk::tools {

/// Where in `text`, which is JSON, the value at `pointer` begins. The text's begin when there is no such
/// value.
[[nodiscard]] Position placeInJson(const std::string& text, const nlohmann::json::json_pointer& pointer);

}  // namespace zk::tools
