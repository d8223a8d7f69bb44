#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::benchmarks {

/// One text that a benchmark looks up.
struct Request {
  std::string key;
  std::string defaultValue;
  std::optional<std::int64_t> count;
  std::string lookedUpKey;  ///< the key with the count's suffix, for systems that need it complete
  std::vector<std::string> names;
  std::vector<std::string> values;
};

using Requests = std::vector<const Request*>;

/// The entries of the catalogue from which requests are taken.
enum class Kind { plain, counted, oneSubstitution, threeSubstitutions };

/// 4,096 requests for entries of one kind in random order, the same on every call and in every run.
[[nodiscard]] const Requests& requests(Kind kind);

inline constexpr std::size_t kRequests = 4096;

/// The German table: all keys and texts, as the module reads them.
struct Pair {
  std::string_view key;
  std::string_view text;
};
[[nodiscard]] const std::vector<Pair>& germanTexts();

/// A directory for files of this run, removed when the process ends.
[[nodiscard]] const std::string& workDirectory();

}  // namespace zk::benchmarks
