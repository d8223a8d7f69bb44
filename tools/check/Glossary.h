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

/// A concept and the words for it.
struct Term {
  std::string name;    ///< of the concept, in English
  Phrases english;     ///< English phrases that mean it
  Phrases exceptions;  ///< phrases that contain one of those but mean something else
  /// By language, case-folded: a translation must contain one of them, anywhere in a word.
  ByName<std::vector<std::string>> stems;
};

/// How a language is written in this catalogue.
struct LanguageStyle {
  std::string quotationMarks;              ///< empty if not specified
  Phrases wrongAddress;                    ///< words of another form of address
  Phrases doubledWords;                    ///< words that may be repeated
  Phrases loanWords;                       ///< English words that the language uses
  bool doublesWords = false;               ///< whether all words may be repeated
  std::vector<std::string> noBreakBefore;  ///< marks that need a no-break space before them
  std::vector<std::string> noBreakAfter;   ///< marks that need a no-break space after them
  bool nounsInflect = true;                ///< whether a noun changes with the number before it
  bool sentenceStops = true;               ///< whether sentences end with a full stop or a question mark
};

/// The terms and styles that the translators have agreed on.
struct Glossary {
  static constexpr const char* kFile = "resources/glossary.json";

  std::vector<Term> terms;
  ByName<LanguageStyle> styles;  ///< by language

  /// Reads the glossary of the project at `root`; empty without a file. Throws `CommandFailed` with the first error.
  [[nodiscard]] static Glossary read(const std::string& root);

  /// Returns how `language` is written; the defaults if the glossary does not have it.
  [[nodiscard]] const LanguageStyle& styleOf(std::string_view language) const;
};

}  // namespace zk::tools
