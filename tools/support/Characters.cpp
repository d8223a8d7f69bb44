#include <ZKStrings/tools/support/Characters.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

std::string_view lastCodePoint(std::string_view text) {
  std::size_t begin = text.size();
  while (begin > 0) {
    --begin;
    if (!isContinuationByte(text[begin])) break;
  }
  return text.substr(begin);
}

std::size_t lengthOf(std::string_view text) {
  std::size_t length = 0;
  for (CodePoints left(text); left != left.end(); ++left) ++length;
  return length;
}

std::string lowerCased(std::string_view text) {
  std::string result(text);
  for (char& letter : result) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return result;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t at = 0;
  for (std::size_t found = text.find(from); found != text.npos; found = text.find(from, at)) {
    result.append(text, at, found - at).append(to);
    at = found + from.size();
  }
  return result.append(text, at);
}

std::string withoutControls(std::string_view text, bool keepsLines) {
  std::string result;
  for (const CodePoint next : CodePoints(text)) {
    const char32_t value = next.value.value_or(U' ');
    const bool isControl = value < 0x20 || (value >= 0x7F && value < 0xA0);
    if (isControl && !(keepsLines && value == '\n')) {
      result += fmt::format("\\U{:04x}", std::uint32_t{value});
    } else {
      result += next.bytes;
    }
  }
  return result;
}

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
