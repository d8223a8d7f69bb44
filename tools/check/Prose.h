#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// `text` with Unicode's full case folding.
[[nodiscard]] std::string caseFolded(std::string_view text);

/// Returns `text` with each placeholder, `<b>` tag, handle and address replaced by blanks of the same size, so offsets
/// stay the same.
[[nodiscard]] std::string proseOf(std::string_view text);

/// A word of a text as it is written and case-folded.
struct Word {
  std::string_view spelled;
  std::string folded;
};

/// The words of the text.
class Words {
 public:
  explicit Words(std::string_view text);
  Words(const Words&) = delete;
  Words& operator=(const Words&) = delete;

  [[nodiscard]] std::size_t size() const { return words_.size(); }
  [[nodiscard]] const Word& operator[](std::size_t at) const { return words_[at]; }
  /// The offset in the text.
  [[nodiscard]] std::size_t offsetOf(std::size_t at) const;

 private:
  std::string prose_;
  std::vector<Word> words_;
};

/// One or several words in a row to find in texts. A star at the beginning or end of a word matches any letters. A word
/// with capitals matches only the same capitals, other words match any case.
class Phrase {
 public:
  explicit Phrase(std::string_view spelled);

  /// Returns the number of words of the phrase if `words` has it at `at`, else 0.
  [[nodiscard]] std::size_t sizeAt(const Words& words, std::size_t at) const;

 private:
  struct Pattern {
    std::string text;
    bool hasCapitals;
    bool isOpenBefore;
    bool isOpenAfter;
    [[nodiscard]] bool matches(const Word& word) const;
  };
  std::vector<Pattern> patterns_;
};

using Phrases = std::vector<Phrase>;
[[nodiscard]] Phrases phrasesOf(const std::vector<std::string>& spelled);

/// Returns the number of words of the first of `phrases` that `words` has at `at`, 0 if it has none.
[[nodiscard]] std::size_t sizeAt(const Phrases& phrases, const Words& words, std::size_t at);

}  // namespace zk::tools
