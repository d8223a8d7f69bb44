#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string_view>

/// The hashing and comparing of short texts, which is where a lookup spends its time: inline and by whole
/// words, where the library's functions cost more than their work.

namespace zk {

namespace bytes_detail {

template <class Word>
Word load(const char* bytes) {
  Word word;
  std::memcpy(&word, bytes, sizeof(word));
  return word;
}

/// Whether the first and the last word of two texts agree; all of a text that is at most two words long.
template <class Word>
bool sameEnds(const char* a, const char* b, std::size_t size) {
  const std::size_t last = size - sizeof(Word);
  return ((load<Word>(a) ^ load<Word>(b)) | (load<Word>(a + last) ^ load<Word>(b + last))) == 0;
}

/// Copies the first and the last word of a text; all of a text that is at most two words long.
template <class Word>
void copyEnds(char* to, const char* from, std::size_t size) {
  const std::size_t last = size - sizeof(Word);
  const auto first = load<Word>(from);
  const auto other = load<Word>(from + last);
  std::memcpy(to, &first, sizeof(Word));
  std::memcpy(to + last, &other, sizeof(Word));
}

/// Multiplies to 128 bits and folds the halves together, so that every bit of both factors reaches the
/// result. This way serves every machine.
constexpr std::uint64_t foldByHalves(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t kLow = 0xFFFFFFFF;
  const std::uint64_t low = (a & kLow) * (b & kLow);
  const std::uint64_t oneMiddle = (a >> 32) * (b & kLow) + (low >> 32);
  const std::uint64_t otherMiddle = (a & kLow) * (b >> 32) + (oneMiddle & kLow);
  const std::uint64_t high = (a >> 32) * (b >> 32) + (oneMiddle >> 32) + (otherMiddle >> 32);
  return (otherMiddle << 32 | (low & kLow)) ^ high;
}

#ifdef __SIZEOF_INT128__
__extension__ using Product = unsigned __int128;

/// The same, in one instruction where the machine multiplies to 128 bits.
constexpr std::uint64_t fold(std::uint64_t a, std::uint64_t b) {
  const Product product = static_cast<Product>(a) * b;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}
#else
constexpr std::uint64_t fold(std::uint64_t a, std::uint64_t b) {
  return foldByHalves(a, b);
}
#endif

static_assert(fold(0x9E3779B97F4A7C15, 0xD1B54A32D192ED03) ==
              foldByHalves(0x9E3779B97F4A7C15, 0xD1B54A32D192ED03));
static_assert(fold(~0ULL, ~0ULL) == foldByHalves(~0ULL, ~0ULL));

inline constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
inline constexpr std::uint64_t kSeed = 0xD1B54A32D192ED03;

inline constexpr std::uint64_t kHighBits = 0x8080808080808080;

/// Not zero when `character` is one of the eight bytes of `word`, and only then: its lowest bit lies in the
/// lowest such byte.
inline std::uint64_t marksOf(char character, std::uint64_t word) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  const std::uint64_t differences = word ^ kOnes * static_cast<unsigned char>(character);
  return (differences - kOnes) & ~differences & kHighBits;
}

}  // namespace bytes_detail

/// Whether the `size` bytes at `a` and at `b` are the same.
inline bool sameBytes(const char* a, const char* b, std::size_t size) {
  using bytes_detail::load;
  using bytes_detail::sameEnds;
  for (; size > 16; a += 8, b += 8, size -= 8) {
    if (load<std::uint64_t>(a) != load<std::uint64_t>(b)) return false;
  }
  if (size >= 8) return sameEnds<std::uint64_t>(a, b, size);
  if (size >= 4) return sameEnds<std::uint32_t>(a, b, size);
  if (size >= 2) return sameEnds<std::uint16_t>(a, b, size);
  return size == 0 || *a == *b;
}

/// A hash of two words for the indexes in memory. Who does not know `seed` cannot choose words that collide.
inline std::uint64_t hashOfWords(std::uint64_t first, std::uint64_t last, std::uint64_t seed) {
  return bytes_detail::fold(first ^ seed, last ^ std::rotl(seed, 32));
}

/// A hash of `bytes`, likewise. Its values differ between machines and are never stored.
inline std::uint64_t hashOf(std::string_view bytes, std::uint64_t seed = bytes_detail::kSeed) {
  using bytes_detail::load;
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  std::uint64_t hash = bytes_detail::kFirst ^ left;
  for (; left > 16; at += 16, left -= 16) {
    hash = hashOfWords(load<std::uint64_t>(at), load<std::uint64_t>(at + 8) ^ hash, seed);
  }
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  if (left >= 8) {
    first = load<std::uint64_t>(at);
    last = load<std::uint64_t>(at + left - 8);
  } else if (left >= 4) {
    first = load<std::uint32_t>(at);
    last = load<std::uint32_t>(at + left - 4);
  } else if (left > 0) {
    first = static_cast<unsigned char>(at[0]);
    last = static_cast<std::uint64_t>(static_cast<unsigned char>(at[left / 2])) << 8 |
           static_cast<unsigned char>(at[left - 1]);
  }
  return hashOfWords(first, last ^ hash, seed);
}

/// A text as one word: its bytes when it is at most eight long, which together with the size tell texts
/// apart, or else a hash of them.
inline std::uint64_t wordOf(std::string_view text, std::uint64_t seed = bytes_detail::kSeed) {
  using bytes_detail::load;
  const char* const last = text.data() + text.size();
  if (text.size() > 8) return hashOf(text, seed);
  if (text.size() >= 4)
    return load<std::uint32_t>(text.data()) | std::uint64_t{load<std::uint32_t>(last - 4)} << 32;
  if (text.size() >= 2)
    return load<std::uint16_t>(text.data()) | std::uint64_t{load<std::uint16_t>(last - 2)} << 16;
  return text.empty() ? 0 : static_cast<unsigned char>(text[0]);
}

/// Whether all of `text` is ASCII and none of it one of the ASCII characters `excluded`.
inline bool isAsciiWithout(std::string_view text, std::initializer_list<char> excluded) {
  std::uint64_t found = 0;
  const char* at = text.data();
  std::size_t left = text.size();
  const auto look = [&](std::uint64_t eight) {
    found |= eight & bytes_detail::kHighBits;
    for (const char character : excluded) found |= bytes_detail::marksOf(character, eight);
  };
  for (; left >= 8; at += 8, left -= 8) look(bytes_detail::load<std::uint64_t>(at));
  if (left > 0) look(wordOf({at, left}));
  return found == 0;
}

/// Where the first byte for which `marksOfWord` (a function of eight bytes that sets bits in those wanted,
/// the lowest being exact) and `isWanted` (the same of one) are true stands in `text` from `from` on; the
/// size of `text`, or more, if nowhere.
template <class MarksOfWord, class IsWanted>
std::size_t findByte(std::string_view text, std::size_t from, MarksOfWord marksOfWord, IsWanted isWanted) {
  for (; from + 8 <= text.size(); from += 8) {
    const std::uint64_t marks = marksOfWord(bytes_detail::load<std::uint64_t>(text.data() + from));
    if (marks == 0) continue;
    if constexpr (std::endian::native != std::endian::little) break;
    return from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
  }
  while (from < text.size() && !isWanted(text[from])) ++from;
  return from;
}

/// Where an ASCII character first stands.
inline std::size_t findAscii(char wanted, std::string_view text, std::size_t from) {
  return findByte(
      text, from, [=](std::uint64_t eight) { return bytes_detail::marksOf(wanted, eight); },
      [=](char character) { return character == wanted; });
}

/// Where one of two ASCII characters first stands.
inline std::size_t findEither(char one, char other, std::string_view text, std::size_t from) {
  return findByte(
      text, from,
      [=](std::uint64_t eight) {
        return bytes_detail::marksOf(one, eight) | bytes_detail::marksOf(other, eight);
      },
      [=](char character) { return character == one || character == other; });
}

/// Where the first byte that is not ASCII stands.
inline std::size_t findNonAscii(std::string_view text, std::size_t from) {
  return findByte(
      text, from, [](std::uint64_t eight) { return eight & bytes_detail::kHighBits; },
      [](char character) { return static_cast<signed char>(character) < 0; });
}

/// Copies `size` bytes to `to`, which must not overlap them, and gives the place behind the copy.
inline char* copyBytes(char* to, const char* from, std::size_t size) {
  using bytes_detail::copyEnds;
  if (size > 16) {
    std::memcpy(to, from, size);
  } else if (size >= 8) {
    copyEnds<std::uint64_t>(to, from, size);
  } else if (size >= 4) {
    copyEnds<std::uint32_t>(to, from, size);
  } else if (size >= 2) {
    copyEnds<std::uint16_t>(to, from, size);
  } else if (size == 1) {
    *to = *from;
  }
  return to + size;
}

/// What `copyUntil` may write behind the end of its copy.
inline constexpr std::size_t kCopySlack = 8;

/// Copies `text` from `from` on to `to`, up to where the ASCII character `mark` first stands or to its end,
/// and gives that place. `to` must have room for all of it and `kCopySlack` bytes more.
inline std::size_t copyUntil(char mark, char* to, std::string_view text, std::size_t from) {
  using bytes_detail::load;
  if (std::endian::native != std::endian::little || text.size() < 8) {
    const std::size_t end = std::min(findAscii(mark, text, from), text.size());
    copyBytes(to, text.data() + from, end - from);
    return end;
  }
  const auto copyWord = [&](std::uint64_t word) {
    std::memcpy(to, &word, sizeof(word));
    to += sizeof(word);
    return bytes_detail::marksOf(mark, word);
  };
  for (; from + 8 <= text.size(); from += 8) {
    const std::uint64_t marks = copyWord(load<std::uint64_t>(text.data() + from));
    if (marks != 0) return from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
  }
  const std::size_t left = text.size() - from;
  if (left == 0) return from;
  // The last word of the text, without what was copied before.
  const std::uint64_t last = load<std::uint64_t>(text.data() + text.size() - 8) >> (64 - 8 * left);
  const std::uint64_t marks = copyWord(last);
  return marks == 0 ? text.size() : from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

}  // namespace zk
