#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/platform/text/Bytes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace zk {

namespace {

constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

std::uint32_t shortHashOf(std::string_view key) {
  return static_cast<std::uint32_t>(hashOf(key) >> 32);
}

/// The slot where the search for `hash` begins.
std::size_t placeOf(std::uint32_t hash, std::size_t slots) {
  return static_cast<std::size_t>((std::uint64_t{hash} * slots) >> 32);
}

/// A place or a size in a table's text. Fits, because the file is at most 256 MiB long.
std::uint32_t narrow(std::size_t number) {
  return static_cast<std::uint32_t>(number);
}

}  // namespace

StringTable StringTable::inFile(const std::string& path, std::error_code& failure) {
  std::optional<std::string> bytes = contentsOfFile(path, failure);
  if (!bytes) return StringTable();
  std::optional<std::string> text = decodedText(*std::move(bytes));
  if (!text) return StringTable();

  // Moves keys and texts to the beginning of the text, one after the other, so a lookup reads fewer cache lines.
  std::size_t kept = 0;
  const auto keep = [&](const StringTableReader::Token& token) {
    char* const to = text->data() + kept;
    std::size_t size = token.end - token.begin;
    std::memmove(to, text->data() + token.begin, size);
    if (token.hasEscapes) size = unescape(to, size);
    kept += size;
    return narrow(size);
  };
  std::vector<Slot> entries;
  entries.reserve(text->size() / 64);
  StringTableReader reader(*text);
  while (reader.next()) {
    const std::size_t key = kept;
    const std::uint32_t keySize = keep(reader.key());
    const std::uint32_t valueSize = keep(reader.value());
    entries.push_back({shortHashOf({text->data() + key, keySize}), narrow(key), keySize, valueSize});
  }
  if (reader.error()) return StringTable();
  return StringTable(*std::move(text), entries);
}

StringTable::StringTable() : StringTable(std::string(), {}) {
}

StringTable::StringTable(std::string text, const std::vector<Slot>& entries)
    : text_(std::move(text)), slots_(entries.size() * 3 / 2 + 1, Slot{0, kFree, 0, 0}) {
  for (const Slot& entry : entries) {
    slots_[slotFor(entry.hash, {text_.data() + entry.key, entry.keySize})] = entry;
  }
}

/// The slot of `key`, or the free slot where it belongs.
std::size_t StringTable::slotFor(std::uint32_t hash, std::string_view key) const {
  std::size_t at = placeOf(hash, slots_.size());
  for (;; at = at + 1 == slots_.size() ? 0 : at + 1) {
    const Slot& slot = slots_[at];
    if (slot.key == kFree) return at;
    if (slot.hash != hash || slot.keySize != key.size()) continue;
    if (std::char_traits<char>::compare(text_.data() + slot.key, key.data(), key.size()) == 0) return at;
  }
}

std::optional<std::string_view> StringTable::find(std::string_view key) const {
  const Slot& slot = slots_[slotFor(shortHashOf(key), key)];
  if (slot.key == kFree) return std::nullopt;
  return std::string_view(text_.data() + slot.key + slot.keySize, slot.valueSize);
}

}  // namespace zk
