#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace zk {

namespace hash_detail {

inline std::uint64_t load(const char* bytes, std::size_t size) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, size);
  return word;
}

__extension__ using Product = unsigned __int128;

/// Multiplies to 128 bits and folds the halves together, so that every bit of both factors reaches the
/// result.
inline std::uint64_t fold(std::uint64_t a, std::uint64_t b) {
  const Product product = static_cast<Product>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

}  // namespace hash_detail

/// A fast hash of bytes for the in-memory indexes. Its values differ between machines and are never stored.
inline std::uint64_t hashOf(std::string_view bytes) {
  using hash_detail::fold;
  using hash_detail::load;
  constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
  constexpr std::uint64_t kSecond = 0xD1B54A32D192ED03;
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  std::uint64_t hash = kFirst ^ left;
  for (; left > 16; at += 16, left -= 16) hash = fold(load(at, 8) ^ kSecond, load(at + 8, 8) ^ hash);
  if (left >= 8) return fold(load(at, 8) ^ kSecond, load(at + left - 8, 8) ^ hash);
  if (left >= 4) return fold(load(at, 4) ^ kSecond, load(at + left - 4, 4) ^ hash);
  if (left >= 2) return fold(load(at, 2) ^ kSecond, load(at + left - 2, 2) ^ hash);
  return fold((left == 1 ? load(at, 1) : 0) ^ kSecond, hash);
}

}  // namespace zk
