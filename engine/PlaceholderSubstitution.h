#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <string>
#include <string_view>

namespace zk {

/// Returns `text` with each placeholder "%{name}" replaced by the text that `substitutions` has for its name, one pair
/// after the other in their order. A value that contains the placeholder of a later pair is filled in as well. Other
/// placeholders stay as they are. A placeholder cannot be escaped.
[[nodiscard]] std::string applySubstitutions(std::string_view text, const Substitutions& substitutions);

}  // namespace zk
