#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

/// Replaces every occurrence of `target` in `text` by `replacement`, from the beginning on, without overlaps;
/// inserted text is not searched again. All three are UTF-8; bytes that are not equal only themselves.
///
/// Canonically equivalent sequences are equal: é and e + U+0301, K and the Kelvin sign. Letters that differ
/// in case, in accents or by compatibility are not, and a letter is never found without the accents that
/// follow it. An empty `target` occurs nowhere. `replacement` must not be a part of `text`.
void replaceOccurrences(std::string& text, std::string_view target, std::string_view replacement);

/// Whether no canonical equivalence reaches across the beginning of `text` to whatever stands before it: an
/// accent would.
[[nodiscard]] inline bool hasBorderBefore(std::string_view text);

/// Where a target was found: the bytes [begin, end) of the text.
struct Occurrence {
  std::size_t begin;
  std::size_t end;
};

/// Finds one occurrence after the other, by the rules above, for every text and target.
class CanonicalSearch {
 public:
  CanonicalSearch(std::string_view text, std::string_view target);
  std::optional<Occurrence> next();

  /// A code point of a canonically decomposed text.
  struct Unit {
    char32_t value;  // a byte that is not UTF-8 stands above all code points
    std::uint8_t combiningClass;
    std::size_t begin, end;  // the bytes of the text whose decomposition it belongs to
  };

 private:
  [[nodiscard]] bool isBorder(std::size_t at) const;

  const std::vector<Unit> text_;
  const std::vector<Unit> target_;
  const std::vector<std::size_t> repeatedBeginnings_;  // of the target
  std::size_t at_ = 0;
};

/// Finds the same as `CanonicalSearch`, at the speed of a comparison of bytes, for targets that `serves`
/// accepts.
class AsciiSearch {
 public:
  AsciiSearch(std::string_view text, std::string_view target) : text_(text), target_(target) {}
  std::optional<Occurrence> next();

  [[nodiscard]] static bool serves(std::string_view target);

 private:
  std::string_view text_;
  std::string_view target_;
  std::size_t at_ = 0;
};

/// The same for what does not begin with ASCII.
[[nodiscard]] bool isBorderBeforeNonAscii(std::string_view text);

inline bool hasBorderBefore(std::string_view text) {
  const bool isBeforeAscii = text.empty() || static_cast<signed char>(text[0]) >= 0;
  return isBeforeAscii || isBorderBeforeNonAscii(text);
}

}  // namespace zk
