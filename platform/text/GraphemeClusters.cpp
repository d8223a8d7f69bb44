#include <ZKStrings/platform/text/GraphemeClusters.h>
#include <ZKStrings/platform/text/ICUMemory.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <new>

#include <unicode/uchar.h>

namespace zk {

namespace {

// The classes of the characters are ICU's; the rules are those of Unicode's Annex 29, and the comments give their
// numbers. ICU's own iterator takes microseconds to open, since it allocates a dozen times for that, and can
// never be opened again in a process where memory was short at its first opening.

using Class = UGraphemeClusterBreak;

Class classOf(char32_t codePoint) {
  return static_cast<Class>(
      u_getIntPropertyValue(static_cast<UChar32>(codePoint), UCHAR_GRAPHEME_CLUSTER_BREAK));
}

template <class... Classes>
constexpr std::uint32_t setOf(Classes... classes) {
  return ((std::uint32_t{1} << classes) | ...);
}

/// The classes that join a character of the class `before` whatever else stands around them.
constexpr std::uint32_t joining(Class before) {
  constexpr std::uint32_t kMarks = setOf(U_GCB_EXTEND, U_GCB_ZWJ, U_GCB_SPACING_MARK);
  switch (before) {
    case U_GCB_CR:
      return setOf(U_GCB_LF);  // GB3
    case U_GCB_LF:
    case U_GCB_CONTROL:
      return 0;  // GB4
    case U_GCB_PREPEND:
      return ~setOf(U_GCB_CR, U_GCB_LF, U_GCB_CONTROL);  // GB9b
    case U_GCB_L:
      return kMarks | setOf(U_GCB_L, U_GCB_V, U_GCB_LV, U_GCB_LVT);  // GB6
    case U_GCB_V:
    case U_GCB_LV:
      return kMarks | setOf(U_GCB_V, U_GCB_T);  // GB7
    case U_GCB_T:
    case U_GCB_LVT:
      return kMarks | setOf(U_GCB_T);  // GB8
    default:
      return kMarks;  // GB9, GB9a
  }
}

bool isPictograph(char32_t codePoint) {
  const auto isOne = [](UChar32 value) {
    return u_hasBinaryProperty(value, UCHAR_EXTENDED_PICTOGRAPHIC) != 0;
  };
  static const bool isReady = [&] {
    constexpr UChar32 kHeart = 0x2764;
    requireMemoryForICU();
    if (!isOne(kHeart)) throw std::bad_alloc();
    return true;
  }();
  return isReady && isOne(static_cast<UChar32>(codePoint));
}

/// Reads one cluster, code point by code point.
class Cluster {
 public:
  explicit Cluster(char32_t first)
      : last_(classOf(first)), base_(first), isHalfFlag_(last_ == U_GCB_REGIONAL_INDICATOR) {}

  /// Whether `next` belongs to the cluster too.
  bool takes(char32_t next) {
    const Class after = classOf(next);
    const bool isFlag = isHalfFlag_ && after == U_GCB_REGIONAL_INDICATOR;  // GB12, GB13
    if (!isFlag && (joining(last_) & setOf(after)) == 0 && !joinsPictograph(next)) return false;
    const bool isBehindBase = last_ != U_GCB_ZWJ && (after == U_GCB_EXTEND || after == U_GCB_ZWJ);
    if (!isBehindBase) base_ = next;
    isHalfFlag_ = !isFlag && after == U_GCB_REGIONAL_INDICATOR;
    last_ = after;
    return true;
  }

 private:
  [[nodiscard]] bool joinsPictograph(char32_t next) const {
    return last_ == U_GCB_ZWJ && isPictograph(base_) && isPictograph(next);  // GB11
  }

  Class last_;
  char32_t base_;  // what stands before the extending characters and the one joiner at the end
  bool isHalfFlag_;
};

}  // namespace

std::size_t firstClusterSize(std::string_view text) {
  CodePoint next = firstCodePoint(text);
  std::size_t size = next.bytes.size();
  if (!next.value) return size;
  Cluster cluster(*next.value);
  while (size < text.size()) {
    next = firstCodePoint(text.substr(size));
    if (!next.value || !cluster.takes(*next.value)) break;
    size += next.bytes.size();
  }
  return size;
}

}  // namespace zk
