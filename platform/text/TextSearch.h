#pragma once

#include <ZKStrings/platform/text/CanonicalForm.h>

#include <cstddef>
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

 private:
  [[nodiscard]] bool isBorder(std::size_t at) const;

  const std::vector<CanonicalUnit> text_;
  const std::vector<CanonicalUnit> target_;
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

}  // namespace zk
