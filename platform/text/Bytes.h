#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Inline hashing, searching and copying of short texts by whole words. A library call would take longer than the work.

namespace zk {

namespace internal {

template <class Word>
Word load(const char* bytes) {
  Word word;
  std::memcpy(&word, bytes, sizeof(word));
  return word;
}

/// Copies the first and the last word of a text: all of a text that is at most two words long.
template <class Word>
void copyEnds(char* to, const char* from, std::size_t size) {
  const std::size_t last = size - sizeof(Word);
  const auto first = load<Word>(from);
  const auto other = load<Word>(from + last);
  std::memcpy(to, &first, sizeof(Word));
  std::memcpy(to + last, &other, sizeof(Word));
}

inline constexpr std::uint64_t kHighBits = 0x8080808080808080;

/// Not zero if `character` is one of the eight bytes of `word`. The lowest bit set is in the lowest such byte.
inline std::uint64_t marksOf(char character, std::uint64_t word) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  const std::uint64_t differences = word ^ kOnes * static_cast<unsigned char>(character);
  return (differences - kOnes) & ~differences & kHighBits;
}

/// A text of at most eight bytes as one word. Different texts of the same size have different words.
inline std::uint64_t wordOf(const char* bytes, std::size_t size) {
  const char* const last = bytes + size;
  if (size >= 4) return load<std::uint32_t>(bytes) | std::uint64_t{load<std::uint32_t>(last - 4)} << 32;
  if (size >= 2) return load<std::uint16_t>(bytes) | std::uint64_t{load<std::uint16_t>(last - 2)} << 16;
  return size == 0 ? 0 : static_cast<unsigned char>(*bytes);
}

}  // namespace internal

/// A hash of two words. Only its upper half depends on all their bits.
constexpr std::uint64_t hashOfWords(std::uint64_t one, std::uint64_t other) {
  return (one ^ one >> 32) * 0x9E3779B97F4A7C15 + (other ^ other >> 32) * 0xD1B54A32D192ED03;
}

/// A hash of `bytes`. Only its upper half depends on all of them. Hashes differ between machines and are never stored. Not
/// inlined: callers need it only for long texts, and without it they are small enough to be inlined themselves.
[[gnu::noinline]] inline std::uint64_t hashOf(std::string_view bytes) {
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  std::uint64_t hash = hashOfWords(0, left);
  for (; left > 16; at += 16, left -= 16) {
    hash = hashOfWords(internal::load<std::uint64_t>(at) ^ hash, internal::load<std::uint64_t>(at + 8));
  }
  const bool isOneWord = left <= 8;
  const std::uint64_t first = isOneWord ? internal::wordOf(at, left) : internal::load<std::uint64_t>(at);
  const std::uint64_t last = isOneWord ? 0 : internal::load<std::uint64_t>(at + left - 8);
  return hashOfWords(first ^ hash, last);
}

/// A text as one word: its bytes if there are at most eight, or else a hash of them.
inline std::uint64_t wordOf(std::string_view text) {
  return text.size() <= 8 ? internal::wordOf(text.data(), text.size()) : hashOf(text);
}

/// Whether `text` is ASCII and contains none of the ASCII characters `excluded`.
template <char... excluded>
bool isAsciiWithout(std::string_view text) {
  std::uint64_t found = 0;
  const auto look = [&](std::uint64_t eight) {
    found |= ((eight & internal::kHighBits) | ... | internal::marksOf(excluded, eight));
  };
  const char* const end = text.data() + text.size();
  const bool isLong = text.size() >= 8;
  for (; text.size() > 8; text.remove_prefix(8)) look(internal::load<std::uint64_t>(text.data()));
  look(isLong ? internal::load<std::uint64_t>(end - 8) : internal::wordOf(text.data(), text.size()));
  return found == 0;
}

/// Returns the position of the first of two ASCII characters from `from` on; the size of `text`, or more, if there is none.
inline std::size_t findEither(char one, char other, std::string_view text, std::size_t from) {
  for (; from + 8 <= text.size(); from += 8) {
    const auto eight = internal::load<std::uint64_t>(text.data() + from);
    const std::uint64_t marks = internal::marksOf(one, eight) | internal::marksOf(other, eight);
    if (marks == 0) continue;
    if constexpr (std::endian::native != std::endian::little) break;
    return from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
  }
  while (from < text.size() && text[from] != one && text[from] != other) ++from;
  return from;
}

/// Copies `size` bytes to `to`, which must not overlap them, and returns the place after the copy.
inline char* copyBytes(char* to, const char* from, std::size_t size) {
  if (size > 16) {
    std::memcpy(to, from, size);
  } else if (size >= 8) {
    internal::copyEnds<std::uint64_t>(to, from, size);
  } else if (size >= 4) {
    internal::copyEnds<std::uint32_t>(to, from, size);
  } else if (size >= 2) {
    internal::copyEnds<std::uint16_t>(to, from, size);
  } else if (size == 1) {
    *to = *from;
  }
  return to + size;
}

/// The number of bytes that `copyUntil` may write after the end of its copy.
inline constexpr std::size_t kCopySlack = 8;

/// Copies `text` from `from` on to `to`, up to the first ASCII character `mark` or the end. Returns where it stopped.
/// Requires: `to` has room for the rest of `text` and `kCopySlack` bytes more.
inline std::size_t copyUntil(char mark, char* to, std::string_view text, std::size_t from) {
  if (std::endian::native != std::endian::little || text.size() < 8) {
    while (from < text.size() && text[from] != mark) *to++ = text[from++];
    return from;
  }
  const auto copyWord = [&](std::uint64_t word) {
    std::memcpy(to, &word, sizeof(word));
    to += sizeof(word);
    return internal::marksOf(mark, word);
  };
  for (; from + 8 <= text.size(); from += 8) {
    const std::uint64_t marks = copyWord(internal::load<std::uint64_t>(text.data() + from));
    if (marks != 0) return from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
  }
  const std::size_t left = text.size() - from;
  if (left == 0) return from;
  // The last word of the text, without what was copied before.
  const std::uint64_t last = internal::load<std::uint64_t>(text.data() + text.size() - 8) >> (64 - 8 * left);
  const std::uint64_t marks = copyWord(last);
  return marks == 0 ? text.size() : from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

}  // namespace zk
