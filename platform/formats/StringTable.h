#pragma once

#include <ZKStrings/platform/CacheLines.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk {

/// An opened string table: the text of a table file in one buffer, and a flat hash index of views into it.
/// Immutable, so any thread may search it.
class alignas(kCacheLine) StringTable {
 public:
  /// The table in the file at `path`, in UTF-8 (with or without byte-order mark) or UTF-16 (with it). A file
  /// that cannot be read, or is not a well-formed table from its first byte to its last, gives a table
  /// without texts.
  [[nodiscard]] static StringTable inFile(const std::string& path);

  /// The text of `key`, which lives as long as the table; nothing when there is none. Of several entries for
  /// one key the last counts.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const;

  /// How many bytes of memory the table holds.
  [[nodiscard]] std::size_t heldBytes() const { return text_.capacity() + slots_.capacity() * sizeof(Slot); }

 private:
  struct Slot {
    std::uint32_t hash;
    std::uint32_t key, keySize;      // the key: keySize bytes of text_ from key on
    std::uint32_t value, valueSize;  // its text, likewise
  };

  StringTable() : StringTable(std::string(), {}) {}
  StringTable(std::string text, const std::vector<Slot>& entries);
  [[nodiscard]] std::size_t slotFor(std::uint32_t hash, std::string_view key) const;

  std::string text_;
  std::vector<Slot>
      slots_;  // open addressing: an entry stands in the first free slot from its hash's place on
};

}  // namespace zk
