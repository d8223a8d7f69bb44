#pragma once

#include <ZKStrings/benchmarks/Workload.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::benchmarks {

/// The minimum that every lookup must do: search a flat hash table of views, and copy the text into a `std::string`.
class Yardstick {
 public:
  explicit Yardstick(const std::vector<Pair>& pairs) : slots_(pairs.size() * 2) {
    for (const Pair& pair : pairs) slots_[placeOf(pair.key)] = pair;
  }

  [[nodiscard]] std::string find(std::string_view key) const {
    return std::string(slots_[placeOf(key)].text);
  }

  /// Returns the text with its placeholders filled in, in one pass into a string with reserved room.
  [[nodiscard]] std::string find(std::string_view key, const std::vector<std::string>& names,
                                 const std::vector<std::string>& values) const {
    const std::string_view text = slots_[placeOf(key)].text;
    std::size_t size = text.size();
    for (const std::string& value : values) size += value.size();
    std::string result;
    result.reserve(size);
    std::size_t done = 0;
    for (std::size_t at = text.find("%{"); at != std::string_view::npos; at = text.find("%{", done)) {
      const std::size_t end = text.find('}', at);
      const std::string_view name = text.substr(at + 2, end - at - 2);
      result.append(text, done, at - done);
      for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == name) result += values[i];
      }
      done = end + 1;
    }
    result.append(text, done);
    return result;
  }

 private:
  [[nodiscard]] std::size_t placeOf(std::string_view key) const {
    std::size_t at = hashOf(key) % slots_.size();
    while (!slots_[at].key.empty() && slots_[at].key != key) at = at + 1 == slots_.size() ? 0 : at + 1;
    return at;
  }

  std::vector<Pair> slots_;
};

}  // namespace zk::benchmarks
