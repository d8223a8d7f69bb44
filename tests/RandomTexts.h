#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace zk::testing {

/// Random texts made of given pieces, the same in every run.
class RandomTexts {
 public:
  explicit RandomTexts(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {}

  /// A text of at most `most` pieces.
  std::string next(std::size_t most) {
    std::string text;
    for (auto i = random_() % (most + 1); i > 0; --i) text += pieces_[random_() % pieces_.size()];
    return text;
  }

 private:
  std::vector<std::string> pieces_;
  std::mt19937 random_{20240901};
};

}  // namespace zk::testing
