#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// `text` with Unicode's full case folding.
[[nodiscard]] std::string caseFolded(std::string_view text);

/// What of a text is language: each placeholder, `<b>` tag, handle and address in it is replaced by as many
/// blanks as it has bytes, so that offsets stay.
[[nodiscard]] std::string proseOf(std::string_view text);

/// A word as it stands in a text, and case-folded.
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

/// One word or several in a row that are looked for in texts. A star at the end of a word stands for any
/// ending, one at its beginning for any beginning. A word with capitals is found so spelled only, others
/// whatever their case.
class Phrase {
 public:
  explicit Phrase(std::string_view spelled);

  /// The number of words of `words` from `at` on that are the phrase; 0 when it does not stand there.
  [[nodiscard]] std::size_t sizeAt(const Words& words, std::size_t at) const;

 private:
  struct Pattern {
    std::string text;
    bool hasCapitals;
    bool isOpenBefore;
    bool isOpenBehind;
    [[nodiscard]] bool matches(const Word& word) const;
  };
  std::vector<Pattern> patterns_;
};

using Phrases = std::vector<Phrase>;
[[nodiscard]] Phrases phrasesOf(const std::vector<std::string>& spelled);

/// The number of words from `at` on that are one of the phrases, the first that is found; 0 when there is
/// none.
[[nodiscard]] std::size_t sizeAt(const Phrases& phrases, const Words& words, std::size_t at);

}  // namespace zk::tools
