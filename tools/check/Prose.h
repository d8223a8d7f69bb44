#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// `text` with Unicode's full case folding.
[[nodiscard]] std::string caseFolded(std::string_view text);

/// Returns `text` with blanks in place of placeholders, `<b>` tags, handles and addresses, so offsets stay the same.
[[nodiscard]] std::string proseOf(std::string_view text);

/// A word of a text.
struct Word {
  std::size_t offset;  ///< in the text
  std::string spelled;
  std::string folded;  ///< case-folded
};

using Words = std::vector<Word>;
/// The words of the prose of `text`.
[[nodiscard]] Words proseWords(std::string_view text);

/// One or more words to find in texts. A star at either end of a word matches any letters. Capitals make a word case-sensitive.
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
