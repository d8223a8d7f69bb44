#pragma once

#include <ZKStrings/tools/check/Prose.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

template <class Value>
using ByName = std::map<std::string, Value, std::less<>>;

/// One concept, and how its word is recognised.
struct Term {
  std::string name;    ///< of the concept, as it is called in English
  Phrases english;     ///< that mean it
  Phrases exceptions;  ///< that hold one of those and mean something else
  /// By language, case-folded: a translation has one of them, at whatever place in a word.
  ByName<std::vector<std::string>> stems;
};

/// How a language is written in this project.
struct LanguageStyle {
  std::string quotationMarks;              ///< those that it uses; empty when that is not settled
  Phrases wrongAddress;                    ///< that belong to another form of address
  Phrases doubledWords;                    ///< that may stand twice in a row
  Phrases loanWords;                       ///< English words that it has taken over
  bool doublesWords = false;               ///< whether all words may
  std::vector<std::string> noBreakBefore;  ///< marks that need a no-break space before them
  std::vector<std::string> noBreakAfter;   ///< marks that need a no-break space after them
  bool nounsInflect = true;                ///< whether a noun changes with the number before it
  bool sentenceStops = true;               ///< whether sentences end with a full stop or a question mark
};

/// What the translators of all languages have settled on.
struct Glossary {
  static constexpr const char* kFile = "resources/glossary.json";

  std::vector<Term> terms;
  ByName<LanguageStyle> styles;  ///< by language

  /// Reads the glossary of the project at `root`, an empty one when there is none. Throws `CommandFailed`,
  /// with the place of the first fault, when it cannot be read.
  [[nodiscard]] static Glossary read(const std::string& root);
  /// The same of the text of such a file.
  [[nodiscard]] static Glossary parse(const std::string& json);

  /// How `language` is written; of a language that is not in the glossary, nothing is known.
  [[nodiscard]] const LanguageStyle& styleOf(std::string_view language) const;
};

}  // namespace zk::tools
