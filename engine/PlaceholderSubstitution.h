#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <string>
#include <string_view>

namespace zk {

/// `applySubstitutions` for a dictionary that is not empty.
[[nodiscard]] std::string fillIn(std::string_view text, const Substitutions& substitutions);

/// `text` with every placeholder "%{name}" for which `substitutions` has a text replaced by it, one pair
/// after the other in their order: a text that itself contains the placeholder of a later pair is filled in.
/// Other placeholders stay as they are, and there is no way to escape one.
[[nodiscard]] inline std::string applySubstitutions(std::string_view text,
                                                    const Substitutions& substitutions) {
  if (substitutions.begin() == substitutions.end()) return std::string(text);
  return fillIn(text, substitutions);
}

}  // namespace zk
