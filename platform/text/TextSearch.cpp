#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/TextSearch.h>

#include <utility>

namespace zk {

namespace {

/// How many units at the end of each beginning of `target` are the beginning of `target` again, all of them
/// not counted: from there the search by Knuth, Morris and Pratt goes on when the next unit differs.
std::vector<std::size_t> repeatedBeginnings(const std::vector<CanonicalUnit>& target) {
  std::vector<std::size_t> lengths(target.size());
  std::size_t length = 0;
  for (std::size_t i = 1; i < target.size(); ++i) {
    while (length > 0 && target[length].value != target[i].value) length = lengths[length - 1];
    if (target[length].value == target[i].value) ++length;
    lengths[i] = length;
  }
  return lengths;
}

/// Replaces all that `search` finds in `text`.
template <class Search>
void replaceAll(std::string& text, Search search, std::string_view replacement) {
  std::string result;
  std::size_t done = 0;
  while (const std::optional<Occurrence> found = search.next()) {
    if (done == 0) result.reserve(text.size() + replacement.size());
    result.append(text, done, found->begin - done).append(replacement);
    done = found->end;
  }
  if (done == 0) return;
  result.append(text, done);
  text = std::move(result);
}

}  // namespace

CanonicalSearch::CanonicalSearch(std::string_view text, std::string_view target)
    : text_(decomposed(text)), target_(decomposed(target)), repeatedBeginnings_(repeatedBeginnings(target_)) {
}

bool CanonicalSearch::isBorder(std::size_t at) const {
  return at == 0 || at == text_.size() || text_[at].begin != text_[at - 1].begin;
}

std::optional<Occurrence> CanonicalSearch::next() {
  std::size_t same = 0;
  while (at_ < text_.size() && !target_.empty()) {
    const char32_t value = text_[at_++].value;
    while (same > 0 && target_[same].value != value) same = repeatedBeginnings_[same - 1];
    if (target_[same].value == value) ++same;
    if (same < target_.size()) continue;
    const std::size_t begin = at_ - target_.size();
    if (isBorder(begin) && isBorder(at_)) return Occurrence{text_[begin].begin, text_[at_ - 1].end};
    same = repeatedBeginnings_[same - 1];
  }
  return std::nullopt;
}

std::optional<Occurrence> AsciiSearch::next() {
  const std::size_t size = target_.size();
  const std::size_t middle = size / 2;  // placeholders begin and end alike: this is where they differ
  for (; (at_ = findAscii(target_[0], text_, at_)) + size <= text_.size(); ++at_) {
    const char* const place = text_.data() + at_;
    if (place[middle] != target_[middle] || !sameBytes(place, target_.data(), size)) continue;
    if (!hasBorderBefore(text_.substr(at_ + size))) continue;
    at_ += size;
    return Occurrence{at_ - size, at_};
  }
  at_ = text_.size();
  return std::nullopt;
}

bool AsciiSearch::serves(std::string_view target) {
  // K, ; and ` are what the Kelvin sign, the Greek question mark and the Greek varia decompose to, the only
  // other characters whose canonical decomposition is ASCII.
  constexpr std::size_t kLongest = 64;  // it is compared anew at each place of a text
  return !target.empty() && target.size() <= kLongest && isAsciiWithout(target, {'K', ';', '`'});
}

void replaceOccurrences(std::string& text, std::string_view target, std::string_view replacement) {
  if (AsciiSearch::serves(target)) {
    replaceAll(text, AsciiSearch(text, target), replacement);
  } else {
    replaceAll(text, CanonicalSearch(text, target), replacement);
  }
}

}  // namespace zk
