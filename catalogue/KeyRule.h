#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zk {

/// The longest key, in code points.
inline constexpr std::size_t kLongestKey = 100;

/// Returns the key of a new entry with the English text `text` (UTF-8): its letters, combining marks and
/// decimal digits, each run of anything else as one "_", none at the ends, at most 100 code points. "Can't
/// Cashout" becomes "Can_t_Cashout", "1st" becomes "_1st". A line break counts as it is written in source code,
/// so its "n" stays: "Daily\nChallenge" becomes "Daily_nChallenge".
///
/// Translations are found by their keys, so the keys of existing entries are stored and never recomputed.
[[nodiscard]] std::string keyForText(std::string_view text);

}  // namespace zk
