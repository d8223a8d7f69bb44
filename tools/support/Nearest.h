#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// The one of `candidates` that `word` most likely misspells, the first of several that are equally near, or nothing if
/// none is near enough. Distance is the number of bytes to insert, remove or replace, whatever the case of ASCII letters.
[[nodiscard]] std::optional<std::string_view> nearest(std::string_view word,
                                                      const std::vector<std::string_view>& candidates);

/// The end of a message about a word that is not known: `did you mean "X"?`, or `otherwise` without a nearest word.
[[nodiscard]] std::string didYouMean(std::optional<std::string_view> nearest, std::string_view otherwise);

}  // namespace zk::tools
