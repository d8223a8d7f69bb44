#pragma once

#include <ZKStrings/platform/CacheLines.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace zk {

/// An opened string table: the text of a table file in one buffer, and a flat hash index of views into it.
/// Immutable, so any thread may search it.
class alignas(kCacheLine) StringTable {
 public:
  /// The table in the file at `path`, in UTF-8 (with or without byte-order mark) or UTF-16 (with it). A file
  /// that cannot be read, or is not a well-formed table from its first byte to its last, gives a table
  /// without texts. `failure` says why the file could not be read, and is cleared when it could.
  [[nodiscard]] static StringTable inFile(const std::string& path, std::error_code& failure);

  /// The text of `key`, which lives as long as the table; nothing when there is none. Of several entries for
  /// one key the last counts.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const;

  /// How many bytes of memory the table holds.
  [[nodiscard]] std::size_t heldBytes() const { return text_.capacity() + slots_.capacity() * sizeof(Slot); }

 private:
  struct Slot {
    std::uint32_t hash;
    // The key: keySize bytes of text_ from key on. Its text likewise.
    std::uint32_t key, keySize;
    std::uint32_t value, valueSize;
  };

  StringTable();
  StringTable(std::string text, std::uint64_t seed, const std::vector<Slot>& entries);
  [[nodiscard]] std::size_t slotFor(std::uint32_t hash, std::string_view key) const;

  std::string text_;
  /// Open addressing: an entry stands in the first free slot from its hash's place on.
  std::vector<Slot> slots_;
  std::uint64_t seed_;
};

}  // namespace zk
