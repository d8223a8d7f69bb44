#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zk {

/// The longest key, in code points.
inline constexpr std::size_t kLongestKey = 100;

/// The key that a new entry with the English text `text` (UTF-8) gets: its letters, combining marks and
/// decimal digits, each run of anything else as one "_", none at the ends, at most 100 code points. "Can't
/// Cashout" gives "Can_t_Cashout", "1st" gives "_1st". A line break counts as it is written in source code,
/// so that its "n" stays: "Daily\nChallenge" gives "Daily_nChallenge".
///
/// The keys of existing entries are data, not recomputed: translations are found by them.
[[nodiscard]] std::string keyForText(std::string_view text);

}  // namespace zk
