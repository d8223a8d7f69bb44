#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <cstring>
#include <utility>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace zk {

namespace {

constexpr char32_t kFirstByteValue = 0x110000;

const icu::Normalizer2& composition() {
  UErrorCode status = U_ZERO_ERROR;
  return *icu::Normalizer2::getNFCInstance(status);
}

const icu::Normalizer2& decomposition() {
  UErrorCode status = U_ZERO_ERROR;
  return *icu::Normalizer2::getNFDInstance(status);
}

/// Whether no canonical equivalence reaches across the place before `codePoint`.
bool isBorderBefore(const CodePoint& codePoint) {
  return !codePoint.value || composition().hasBoundaryBefore(static_cast<UChar32>(*codePoint.value));
}

/// The canonical decomposition of `text`. The units of what lies between two borders share their `begin` and
/// `end`.
std::vector<CanonicalSearch::Unit> decomposed(std::string_view text) {
  std::vector<CanonicalSearch::Unit> units;
  icu::UnicodeString segment;
  std::size_t begin = 0;
  std::size_t at = 0;
  const auto endSegment = [&] {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString plain = decomposition().normalize(segment, status);
    for (std::int32_t i = 0; i < plain.length(); i = plain.moveIndex32(i, 1)) {
      units.push_back({static_cast<char32_t>(plain.char32At(i)), begin, at});
    }
    segment.remove();
    begin = at;
  };
  while (at < text.size()) {
    const CodePoint next = firstCodePoint(text.substr(at));
    if (isBorderBefore(next)) endSegment();
    at += next.bytes.size();
    if (next.value) {
      segment.append(static_cast<UChar32>(*next.value));
    } else {
      units.push_back({kFirstByteValue + static_cast<unsigned char>(next.bytes[0]), begin, at});
      begin = at;
    }
  }
  endSegment();
  return units;
}

void replace(std::string& text, Occurrence occurrence, std::string_view replacement) {
  const std::size_t length = occurrence.end - occurrence.begin;
  if (replacement.size() > length) {
    text.replace(occurrence.begin, length, replacement);
    return;
  }
  char* const behind = copyBytes(text.data() + occurrence.begin, replacement.data(), replacement.size());
  std::memmove(behind, text.data() + occurrence.end, text.size() - occurrence.end);
  text.resize(text.size() - (length - replacement.size()));
}

/// Replaces `first` and all that `search` finds behind it.
template <class Search>
void replaceAll(std::string& text, Occurrence first, Search& search, std::string_view replacement) {
  std::optional<Occurrence> found = search.next();
  if (!found) {  // nearly always: in place, so that a buffer that is large enough serves for all replacements
    replace(text, first, replacement);
    return;
  }
  std::string result(text, 0, first.begin);
  result += replacement;
  std::size_t done = first.end;
  for (; found; found = search.next()) {
    result.append(text, done, found->begin - done).append(replacement);
    done = found->end;
  }
  result.append(text, done);
  text = std::move(result);
}

}  // namespace

CanonicalSearch::CanonicalSearch(std::string_view text, std::string_view target)
    : text_(decomposed(text)), target_(decomposed(target)) {
}

std::optional<Occurrence> CanonicalSearch::next() {
  const auto isBorder = [&](std::size_t at) {
    return at == 0 || at == text_.size() || text_[at].begin != text_[at - 1].begin;
  };
  for (; at_ + target_.size() <= text_.size(); ++at_) {
    const std::size_t end = at_ + target_.size();
    if (!isBorder(at_) || !isBorder(end)) continue;
    std::size_t same = 0;
    while (same < target_.size() && text_[at_ + same].value == target_[same].value) ++same;
    if (same < target_.size()) continue;
    const Occurrence found{text_[at_].begin, text_[end - 1].end};
    at_ = end;
    return found;
  }
  return std::nullopt;
}

std::optional<Occurrence> AsciiSearch::next() {
  const std::size_t size = target_.size();
  const std::size_t middle = size / 2;  // placeholders begin and end alike: this is where they differ
  for (; (at_ = findAscii(target_[0], text_, at_)) + size <= text_.size(); ++at_) {
    const char* const place = text_.data() + at_;
    if (place[middle] != target_[middle] || !sameBytes(place, target_.data(), size)) continue;
    const std::string_view rest = text_.substr(at_ + size);
    const bool isBeforeAscii = rest.empty() || static_cast<signed char>(rest[0]) >= 0;
    if (!isBeforeAscii && !isBorderBefore(firstCodePoint(rest))) continue;
    at_ += size;
    return Occurrence{at_ - size, at_};
  }
  at_ = text_.size();
  return std::nullopt;
}

bool AsciiSearch::serves(std::string_view target) {
  // K, ; and ` are what the Kelvin sign, the Greek question mark and the Greek varia decompose to, the only
  // other characters whose canonical decomposition is ASCII.
  return !target.empty() && isAsciiWithout(target, {'K', ';', '`'});
}

void replaceOccurrences(std::string& text, std::string_view target, std::string_view replacement) {
  if (target.empty()) return;
  AsciiSearch quick(text, target);
  const std::optional<Occurrence> first = quick.next();
  if (AsciiSearch::serves(
          target)) {  // asked only now: to read at once what was just joined makes the processor wait
    if (first) replaceAll(text, *first, quick, replacement);
    return;
  }
  CanonicalSearch search(text, target);
  if (const std::optional<Occurrence> found = search.next()) replaceAll(text, *found, search, replacement);
}

}  // namespace zk
