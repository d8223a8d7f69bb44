#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// All texts are UTF-8. A byte that is not UTF-8 equals only itself. Thread-safe.

namespace zk {

/// Replaces each `target` in `text` with `replacement`, left to right, without overlap. Inserted text is not searched again.
/// Requires: `replacement` is not a part of `text`.
///
/// Canonically equivalent sequences are equal, such as é and e + U+0301, or K and the Kelvin sign. Letters that
/// differ in case or accents, or only by compatibility, are not. A letter is never found without the accents that
/// follow it. An empty `target` is never found.
void replaceOccurrences(std::string& text, std::string_view target, std::string_view replacement);

/// The spelling that all canonically equivalent texts share (NFD), for comparing and sorting them as bytes.
[[nodiscard]] std::string canonicalForm(std::string_view text);

namespace internal {
[[nodiscard]] bool isBorderBeforeNonAscii(std::string_view text);
}

/// Whether `text` does not begin with an accent, or another mark that combines with what is before it.
[[nodiscard]] inline bool hasBorderBefore(std::string_view text) {
  const bool isBeforeAscii = text.empty() || static_cast<signed char>(text[0]) >= 0;
  return isBeforeAscii || internal::isBorderBeforeNonAscii(text);
}

}  // namespace zk
