#pragma once

#include <ZKStrings/tools/project/EnglishTexts.h>

#include <string>
#include <vector>

namespace zk::tools {

/// What a translator who sees `english` alone must know of it, a line each: when a plural form is used, what
/// the placeholders and marks in it are, how long it is.
[[nodiscard]] std::vector<std::string> translatorNotes(const EnglishText& english);

}  // namespace zk::tools
