#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

namespace zk {

/// The texts for the placeholders of one entry, by name: {"username", "kim"} fills "%{username}".
///
///     const zk::Substitutions substitutions = {{"active", "12"}, {"limit", "50"}};
///
/// It views the texts that it is made of, which must outlive it, and allocates no memory for up to five
/// pairs. A name given twice is a programming error that stops the process.
class Substitutions {
 public:
  struct Pair {
    std::string_view name;
    std::string_view text;
  };

  Substitutions() : size_(0) {}
  Substitutions(std::initializer_list<Pair> pairs) : size_(pairs.size()) {
    for (const Pair* pair = pairs.begin(); pair != pairs.end(); ++pair) {
      for (const Pair* earlier = pairs.begin(); earlier != pair; ++earlier) {
        if (earlier->name == pair->name) __builtin_trap();
      }
    }
    if (size_ > kFew) {
      many_ = pairs;
    } else {
      std::uninitialized_copy(pairs.begin(), pairs.end(), few_);
    }
  }

  /// The pairs, in the order in which they were given.
  [[nodiscard]] const Pair* begin() const { return size_ > kFew ? many_.data() : few_; }
  [[nodiscard]] const Pair* end() const { return begin() + size_; }

 private:
  static constexpr std::size_t kFew = 5;

  std::size_t size_;
  union {
    Pair few_[kFew];  // in a union, so that an empty dictionary costs no initialisation
  };
  std::vector<Pair> many_;
};

}  // namespace zk
