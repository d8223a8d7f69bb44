#pragma once

#include <ZKStrings/platform/CacheLines.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace zk {

/// An opened string table: the text of a table file in one buffer, and a hash index of places in it. Immutable and
/// thread-safe.
class alignas(internal::kCacheLine) StringTable {
 public:
  /// Reads the table in the file at `path`, in an encoding that `decodedText` reads. Returns a table without texts if the
  /// file cannot be read, or is not well-formed from its first byte to its last. `failure` is the reason why the file
  /// could not be read, and is cleared otherwise.
  [[nodiscard]] static StringTable inFile(const std::string& path, std::error_code& failure);

  /// Returns the text of `key`, which lives as long as the table; nothing if there is none. If a key occurs several
  /// times, the last entry counts.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const;

 private:
  struct Slot {
    std::uint32_t hash;
    // The key is the `keySize` bytes of `text_` from `key` on. The value is the `valueSize` bytes after it.
    std::uint32_t key, keySize, valueSize;
  };

  StringTable();
  StringTable(std::string text, const std::vector<Slot>& entries);
  [[nodiscard]] std::size_t slotFor(std::uint32_t hash, std::string_view key) const;

  std::string text_;
  /// Open addressing: an entry is in the first slot that was free, searched from the slot of its hash.
  std::vector<Slot> slots_;
};

}  // namespace zk
