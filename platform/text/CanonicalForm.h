#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

/// All functions take UTF-8. Bytes that are not equal only themselves. Any thread may call them.

/// The one spelling that all canonically equivalent texts share (NFD), so that they can be compared and sorted
/// as bytes.
[[nodiscard]] std::string canonicalForm(std::string_view text);

/// Whether no canonical equivalence reaches across the beginning of `text` to whatever stands before it: an
/// accent would.
[[nodiscard]] inline bool hasBorderBefore(std::string_view text);

/// A code point of a canonically decomposed text.
struct CanonicalUnit {
  char32_t value;  // a byte that is not UTF-8 stands above all code points
  std::uint8_t combiningClass;
  std::size_t begin, end;  // the bytes of the text whose decomposition it belongs to
};

/// The canonical decomposition of `text`. The units of what lies between two borders share their `begin` and
/// `end`.
[[nodiscard]] std::vector<CanonicalUnit> decomposed(std::string_view text);

/// The same as `hasBorderBefore` for what does not begin with ASCII.
[[nodiscard]] bool isBorderBeforeNonAscii(std::string_view text);

inline bool hasBorderBefore(std::string_view text) {
  const bool isBeforeAscii = text.empty() || static_cast<signed char>(text[0]) >= 0;
  return isBeforeAscii || isBorderBeforeNonAscii(text);
}

}  // namespace zk
