#pragma once

#include <ZKStrings/engine/Text.h>
#include <ZKStrings/platform/Export.h>

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zk {

/// The texts for the placeholders of one entry, by name: {"username", "kim"} fills "%{username}".
///
///     const zk::Substitutions substitutions = {{"active", "12"}, {"limit", "50"}};
///
/// What is known only when the program runs may come as any range of pairs:
///
///     std::map<std::string, std::string> values = ...;
///     zk::localizedString(key, english, std::nullopt, values);
///
/// It views the texts that it is made of, which must outlive it. A computed text lives until the end of its
/// statement: long enough for a call, too short for a variable.
///
///     zk::localizedString(key, english, 5, {{"seconds", std::to_string(5)}});        // right
///     const std::string seconds = std::to_string(5);
///     const zk::Substitutions substitutions = {{"seconds", seconds}};                // right
///     const zk::Substitutions substitutions = {{"seconds", std::to_string(5)}};      // wrong: the text is gone
///
/// Up to five pairs in braces need no memory from the heap. A name given twice is a programming error that
/// stops the process; canonically equivalent names (é and e + U+0301) are the same. Moved from, it is empty.
class ZK_EXPORT Substitutions {
 public:
  /// A placeholder's name and the text that fills it. It views both.
  struct Pair {
    /// Of two texts, which must outlive the pair.
    constexpr Pair(Text placeholder, Text replacement) : name(placeholder), text(replacement) {}
    /// Of a `std::pair` of texts, as maps hold them.
    template <class Name, class Replacement>
    constexpr Pair(const std::pair<Name, Replacement>& pair) : Pair(pair.first, pair.second) {}

    std::string_view name;  ///< without "%{" and "}"
    std::string_view text;  ///< taken as it is
  };

  /// None: every placeholder stays as it is.
  Substitutions() : size_(0) {}
  /// The pairs in braces, in their order.
  Substitutions(std::initializer_list<Pair> pairs) : Substitutions(pairs.begin(), pairs.size()) {}

  /// The pairs of a `std::map`, a vector or any other range that holds them (not one that computes them, as
  /// nothing would own the texts).
  template <class Pairs>
  requires requires(const Pairs& pairs) {
    { *std::begin(pairs) } -> std::convertible_to<Pair>;
    requires std::is_lvalue_reference_v<decltype(*std::begin(pairs))>;
  }
  Substitutions(const Pairs& pairs ZK_REFERRED_TO) : Substitutions() {
    std::vector<Pair> list;
    if constexpr (requires { std::size(pairs); }) list.reserve(std::size(pairs));
    for (const auto& pair : pairs) list.emplace_back(pair);
    *this = Substitutions(list.data(), list.size());
  }

  /// Copies view the same texts.
  Substitutions(const Substitutions&) = default;
  /// Leaves `other` empty.
  Substitutions(Substitutions&& other) noexcept
      : size_(std::exchange(other.size_, 0)), many_(std::move(other.many_)) {
    if (size_ <= kFew) std::uninitialized_copy_n(other.few_, size_, few_);
  }
  /// Takes the pairs of `other` over, in place of its own.
  Substitutions& operator=(Substitutions other) noexcept {
    size_ = other.size_;
    many_.swap(other.many_);
    if (size_ <= kFew) std::uninitialized_copy_n(other.few_, size_, few_);
    return *this;
  }
  ~Substitutions() = default;

  /// The first of the pairs, in the order in which they were given.
  [[nodiscard]] const Pair* begin() const ZK_REFERRED_TO { return size_ > kFew ? many_.data() : few_; }
  /// Behind the last of them.
  [[nodiscard]] const Pair* end() const ZK_REFERRED_TO { return begin() + size_; }

 private:
  static constexpr std::size_t kFew = 5;

  Substitutions(const Pair* pairs, std::size_t size) : size_(size) {
    if (size > kFew) {
      many_.assign(pairs, pairs + size);
      stopAtRepetition(many_);
      return;
    }
    for (std::size_t i = 1; i < size; ++i) {
      for (std::size_t earlier = 0; earlier < i; ++earlier) {
        if (mayBeSame(pairs[earlier].name, pairs[i].name)) stopIfSame(pairs[earlier].name, pairs[i].name);
      }
    }
    std::uninitialized_copy_n(pairs, size, few_);
  }

  /// False for nearly all names that are not the same: an ASCII character at either end of a text is there in
  /// each that is canonically equivalent.
  static bool mayBeSame(std::string_view one, std::string_view other) {
    const auto mayAgree = [](char a, char b) {
      return a == b || (static_cast<unsigned char>(a | b) & 0x80U) != 0;
    };
    if (one.empty() || other.empty()) return one.empty() && other.empty();
    return mayAgree(one.front(), other.front()) && mayAgree(one.back(), other.back());
  }
  static void stopIfSame(std::string_view one, std::string_view other);
  static void stopAtRepetition(const std::vector<Pair>& pairs);

  std::size_t size_;
  union {
    Pair few_[kFew];  // in a union, so that an empty dictionary costs no initialisation
  };
  std::vector<Pair> many_{};
};

}  // namespace zk
