#pragma once

#include <ZKStrings/tools/support/Position.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <string>
#include <vector>

namespace zk::tools {

/// A text on its way to translators or back, in whatever format.
struct TranslationUnit {
  std::string key;
  std::string source;  ///< the English text
  std::string target;  ///< the translation; empty for none
  /// Of a unit that was read: `translated` or `needsReview`, and of no meaning without a target.
  TranslationState state = TranslationState::translated;
  std::vector<std::string> notes = {};  ///< for translators; not read back
  Position at = {1, 1};                 ///< in the file that it was read from
};

/// Texts with their translations into one language.
struct Translations {
  std::string language;  ///< empty in a file that does not tell it
  std::vector<TranslationUnit> units;
  std::string catalogue{};  ///< what the catalogue is called; empty in what was read from a file
};

}  // namespace zk::tools
