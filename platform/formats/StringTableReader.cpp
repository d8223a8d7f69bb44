#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <unicode/utf16.h>

namespace zk {

namespace {

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isUnquoted(char c) {
  const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  return isLetter || (c >= '0' && c <= '9') || (c != '\0' && std::strchr("_$/:.-", c) != nullptr);
}

}  // namespace

/// The beginning of the line after the one with `place`.
std::size_t StringTableReader::lineAfter(std::size_t place) const {
  return std::min(text_.find('\n', place), text_.size() - 1) + 1;
}

/// Records an error. The caller has moved `at_` past what cannot be read.
bool StringTableReader::fail(std::size_t offset, std::string expected) {
  error_ = Error{offset, std::move(expected)};
  return false;
}

/// Skips a comment if one begins here. False if it is unterminated; the rest of the text is skipped then. Not inlined,
/// because its stack protection would slow down the skipping of blanks.
[[gnu::noinline]] bool StringTableReader::skipComment() {
  const std::string_view rest = text_.substr(at_);
  const bool isLine = rest.starts_with("//");
  if (!isLine && !rest.starts_with("/*")) return true;
  std::size_t length = rest.find(isLine ? "\n" : "*/", 2);
  if (length == std::string_view::npos && !isLine)
    return fail(std::exchange(at_, text_.size()), "the end \"*/\" of the comment that begins here");
  if (length == std::string_view::npos) length = rest.size();
  comments_.push_back({at_ + 2, at_ + length});
  at_ += isLine ? length : length + 2;
  return true;
}

/// Skips white space and comments. False if a comment is unterminated.
inline bool StringTableReader::skipBlanks() {
  for (;;) {
    while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    if (at_ >= text_.size() || text_[at_] != '/') return true;
    const std::size_t before = at_;
    if (!skipComment()) return false;
    if (at_ == before) return true;
  }
}

inline bool StringTableReader::readQuoted(Token& token) {
  const std::size_t quote = at_++;
  token = {at_, at_};
  while ((at_ = findEither('"', '\\', text_, at_)) < text_.size()) {
    if (text_[at_] == '"') {
      token.end = at_++;
      return true;
    }
    token.hasEscapes = true;
    at_ += 2;
  }
  at_ = lineAfter(quote);
  return fail(quote, "the closing quote of the text that begins here");
}

inline bool StringTableReader::readToken(Token& token, const char* expected) {
  if (at_ < text_.size() && text_[at_] == '"') return readQuoted(token);
  token = {at_, at_};
  // A token may contain a slash, but "/*" begins a comment.
  while (at_ < text_.size() && isUnquoted(text_[at_]) && text_.substr(at_, 2) != "/*") ++at_;
  token.end = at_;
  return token.begin < token.end || fail(at_, expected);
}

/// Reads "=" or ";" after the token `after`. If the mark is missing after a token of several lines, that token was never closed.
inline bool StringTableReader::readMark(char mark, const Token& after) {
  const std::size_t tokenEnd = at_;
  if (!skipBlanks()) return false;
  if (at_ < text_.size() && text_[at_] == mark) {
    ++at_;
    return true;
  }
  if (text_.substr(after.begin, after.end - after.begin).find('\n') != std::string_view::npos) {
    at_ = lineAfter(after.begin);
    return fail(after.begin - 1, "the closing quote of the text that begins here on the same line");
  }
  return mark == '=' ? fail(at_, "\"=\" and the text of the key")
                     : fail(tokenEnd, "\";\" at the end of the entry");
}

bool StringTableReader::next() {
  comments_.clear();
  if (error_) return false;
  const bool areBlanksRead = skipBlanks();
  entryBegin_ = at_;
  if (!areBlanksRead || at_ == text_.size()) return false;
  return readToken(key_, "a key, in quotes") && readMark('=', key_) && skipBlanks() &&
         readToken(value_, "the text of the key, in quotes") && readMark(';', value_);
}

void StringTableReader::recover() {
  error_.reset();
  if (at_ == text_.size()) return;
  const auto lineBegin = [&](std::size_t place) { return place == 0 ? 0 : text_.rfind('\n', place - 1) + 1; };
  const auto beginsEntry = [&](std::size_t line) {
    const std::string_view rest = text_.substr(std::min(text_.find_first_not_of(" \t", line), text_.size()));
    return rest.starts_with('"') || rest.starts_with("/*") || rest.starts_with("//");
  };
  // Continues after the line on which the entry with the error began, so each recovery makes progress.
  at_ = std::max(lineBegin(at_), lineAfter(entryBegin_));
  while (at_ < text_.size() && !beginsEntry(at_)) at_ = lineAfter(at_);
}

namespace {

/// A character and the number of bytes that spell it.
struct Spelled {
  char32_t value = 0;
  std::size_t size = 0;
};

/// The number that up to `most` digits of `base` spell at the beginning of `text`; of size 0 if there are none.
Spelled numberAt(std::string_view text, int base, std::size_t most) {
  std::uint32_t value = 0;
  const char* const end = text.data() + std::min(most, text.size());
  const char* const after = std::from_chars(text.data(), end, value, base).ptr;
  return {value, static_cast<std::size_t>(after - text.data())};
}

/// The meaning of the escape whose backslash is before `text`, and how many bytes of `text` belong to it;
/// nothing for an unknown one.
std::optional<Spelled> escapeAt(std::string_view text) {
  constexpr std::string_view kLetters = "\"\\ntrabfv";
  constexpr std::string_view kMeanings = "\"\\\n\t\r\a\b\f\v";
  if (const std::size_t letter = kLetters.find(text[0]); letter != std::string_view::npos) {
    return Spelled{static_cast<unsigned char>(kMeanings[letter]), 1};
  }
  if (const Spelled octal = numberAt(text, 8, 3); octal.size > 0)
    return Spelled{octal.value & 0xFF, octal.size};
  const Spelled unit = text[0] == 'U' ? numberAt(text.substr(1), 16, 4) : Spelled{};
  if (unit.size == 0) return std::nullopt;
  if (U16_IS_LEAD(unit.value) && text.substr(5, 2) == "\\U") {
    const Spelled trail = numberAt(text.substr(7), 16, 4);
    if (U16_IS_TRAIL(trail.value))
      return Spelled{static_cast<char32_t>(U16_GET_SUPPLEMENTARY(unit.value, trail.value)), 11};
  }
  return Spelled{U16_IS_SURROGATE(unit.value) ? U'\uFFFD' : unit.value, 1 + unit.size};
}

}  // namespace

std::size_t unescape(char* token, std::size_t size, std::vector<std::size_t>* unknown) {
  const std::string_view text(token, size);
  std::string character;
  std::size_t written = 0;
  for (std::size_t at = 0; at < size;) {
    if (text[at] != '\\' || at + 1 == size) {
      token[written++] = text[at++];
      continue;
    }
    const std::optional<Spelled> escape = escapeAt(text.substr(at + 1));
    if (!escape) {
      if (unknown) unknown->push_back(at);
      ++at;
      continue;
    }
    character.clear();
    appendCodePoint(character, escape->value);
    written += character.copy(token + written, character.size());
    at += 1 + escape->size;
  }
  return written;
}

}  // namespace zk
