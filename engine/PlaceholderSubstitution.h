#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <string>
#include <string_view>

namespace zk {

/// Returns `text` with each placeholder "%{name}" replaced with the text for its name in `substitutions`. The pairs
/// are applied one after the other, in order. A value that contains the placeholder of a later pair is filled in as
/// well. Other placeholders stay as they are. A placeholder cannot be escaped.
[[nodiscard]] std::string applySubstitutions(std::string_view text, const Substitutions& substitutions);

}  // namespace zk
