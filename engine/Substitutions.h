#pragma once

#include <ZKStrings/engine/Text.h>
#include <ZKStrings/platform/Export.h>

#include <concepts>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zk {

/// The texts for the placeholders of one entry, by name: {"username", "kim"} fills in "%{username}".
///
///     const zk::Substitutions substitutions = {{"active", "12"}, {"limit", "50"}};
///
/// Names and texts that are known only at run time can come from any range of pairs:
///
///     std::map<std::string, std::string> values = ...;
///     zk::localizedString(key, english, std::nullopt, values);
///
/// The object does not own its texts, which must outlive it. A temporary lives until the end of its statement, which is
/// long enough for a call, but not for a variable:
///
///     zk::localizedString(key, english, 5, {{"seconds", std::to_string(5)}});        // right
///     const zk::Substitutions substitutions = {{"seconds", std::to_string(5)}};      // wrong: the text is destroyed
///
/// Up to five pairs rarely need heap memory. Different objects may be used on different threads at the same time.
///
/// Stops the process if a name occurs twice. Canonically equivalent names, such as é and e + U+0301, count as the same.
class ZK_EXPORT Substitutions {
 public:
  /// A placeholder's name and the text that fills it. The pair owns neither.
  struct Pair {
    /// Constructs a pair of two texts, which must outlive it.
    constexpr Pair(Text placeholder ZK_REFERRED_TO, Text replacement ZK_REFERRED_TO)
        : name(placeholder), text(replacement) {}
    /// Constructs a pair from a `std::pair` of texts, such as an element of a map.
    template <std::convertible_to<Text> Name, std::convertible_to<Text> Replacement>
    constexpr Pair(const std::pair<Name, Replacement>& pair ZK_REFERRED_TO) : Pair(pair.first, pair.second) {}

    std::string_view name;  ///< without "%{" and "}"
    std::string_view text;  ///< inserted as it is

   private:
    friend class Substitutions;
    static constexpr char kAbsent = 0;
    // NOLINTNEXTLINE(bugprone-string-constructor): the address marks the pair as absent
    constexpr Pair() : name(&kAbsent, 0), text() {}
    [[nodiscard]] constexpr bool isAbsent() const { return name.data() == &kAbsent; }
  };

  /// Constructs an empty dictionary: every placeholder stays as it is.
  Substitutions() : size_(0) {}
  /// Constructs a dictionary from up to five pairs in braces, in the given order. The pairs are parameters, not a
  /// `std::initializer_list`, so the compiler can warn about texts that are destroyed too early.
  Substitutions(Pair first ZK_REFERRED_TO, Pair second ZK_REFERRED_TO = {}, Pair third ZK_REFERRED_TO = {},
                Pair fourth ZK_REFERRED_TO = {}, Pair fifth ZK_REFERRED_TO = {})
      : size_(0) {
    const auto addPresent = [this](const Pair& pair) { pair.isAbsent() ? void() : add(pair); };
    (addPresent(first), addPresent(second), addPresent(third), addPresent(fourth), addPresent(fifth));
    stopAtRepetition();
  }
  /// Constructs a dictionary of the pairs in a `std::map`, a vector or any other range that stores its pairs. A range
  /// that computes them does not compile, because nothing would own the texts.
  template <class Pairs>
  requires requires(const Pairs& pairs) {
    { *std::begin(pairs) } -> std::convertible_to<Pair>;
    requires std::is_lvalue_reference_v<decltype(*std::begin(pairs))>;
  }
  Substitutions(const Pairs& pairs ZK_REFERRED_TO) : size_(0) {
    for (const auto& pair : pairs) add(pair);
    stopAtRepetition();
  }

  /// The first pair, in the order of construction.
  [[nodiscard]] const Pair* begin() const ZK_REFERRED_TO { return many_.empty() ? few_ : many_.data(); }
  /// The end of the pairs, after the last one.
  [[nodiscard]] const Pair* end() const ZK_REFERRED_TO { return begin() + size_ + many_.size(); }

 private:
  static constexpr std::size_t kFew = 5;

  void add(const Pair& pair) {
    if (many_.empty() && size_ < kFew) {
      std::construct_at(few_ + size_++, pair);
      return;
    }
    if (many_.empty()) many_.assign(few_, few_ + std::exchange(size_, 0));
    many_.push_back(pair);
  }
  // Inline, so the compiler can compare the names without reading back what it has just stored.
  void stopAtRepetition() const {
    if (!many_.empty()) return stopIfRepeated();
    for (std::size_t i = 1; i < size_; ++i) {
      for (std::size_t earlier = 0; earlier < i; ++earlier) {
        if (mayBeSame(few_[earlier].name, few_[i].name)) return stopIfRepeated();
      }
    }
  }
  /// Whether two names may be equivalent. Equivalent names never begin or end with different ASCII characters.
  static bool mayBeSame(std::string_view one, std::string_view other) {
    const auto mayAgree = [](char a, char b) {
      return a == b || (static_cast<unsigned char>(a | b) & 0x80U) != 0;
    };
    if (one.empty() || other.empty()) return one.empty() && other.empty();
    return mayAgree(one.front(), other.front()) && mayAgree(one.back(), other.back());
  }
  void stopIfRepeated() const;

  std::size_t size_;  // the number of pairs in `few_`; 0 if they are in `many_`
  union {
    Pair few_[kFew];  // in a union, so an empty dictionary initialises none
  };
  std::vector<Pair> many_{};
};

namespace internal {

/// Returns `text` with each placeholder "%{name}" replaced with the text for its name in `substitutions`. The pairs
/// are applied one after the other, in order. If a pair's text contains the placeholder of a later pair, that one is
/// replaced as well. Other placeholders stay as they are. A placeholder cannot be escaped.
[[nodiscard]] std::string applySubstitutions(std::string_view text, const Substitutions& substitutions);

}  // namespace internal

}  // namespace zk
