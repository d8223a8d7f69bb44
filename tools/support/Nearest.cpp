#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Nearest.h>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The most changes that still count as a misspelling.
constexpr std::size_t kMostChanges = 6;

/// The distance of the words, or any number above `most` if it is greater than that.
std::size_t distance(std::string_view from, std::string_view to, std::size_t most) {
  if (std::max(from.size(), to.size()) - std::min(from.size(), to.size()) > most) return most + 1;
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = std::exchange(row[j + 1], std::min({replaced, row[j + 1] + 1, row[j] + 1}));
    }
    if (*std::min_element(row.begin(), row.end()) > most) return most + 1;
  }
  return row.back();
}

}  // namespace

std::optional<std::string_view> nearest(std::string_view word,
                                        const std::vector<std::string_view>& candidates) {
  const std::string wanted = lowerCased(word);
  std::optional<std::string_view> best;
  std::size_t tooMany = std::min((word.size() + 2) / 3, kMostChanges) + 1;
  for (const std::string_view candidate : candidates) {
    if (tooMany == 0) break;
    const std::size_t changes = distance(wanted, lowerCased(candidate), tooMany - 1);
    if (changes >= tooMany) continue;
    best = candidate;
    tooMany = changes;
  }
  return best;
}

std::string didYouMean(std::optional<std::string_view> nearest, std::string_view otherwise) {
  return nearest ? fmt::format("did you mean \"{}\"?", *nearest) : std::string(otherwise);
}

}  // namespace zk::tools
