#pragma once

#include <ZKStrings/tools/support/Position.h>
#include <ZKStrings/tools/translation/TranslationState.h>

#include <string>
#include <vector>

namespace zk::tools {

/// A text on its way to translators or back, in any format.
struct TranslationUnit {
  std::string key;
  std::string source;  ///< the English text
  std::string target;  ///< the translation; empty if there is none
  /// In a unit that was read, `translated` or `needsReview`; meaningless without a target.
  TranslationState state = TranslationState::translated;
  std::string notes = {};  ///< for translators, one a line
  std::string previousSource =
      {};                ///< the English text that the target translates; empty unless it has changed
  Position at = {1, 1};  ///< in the file that it was read from
};

/// Texts with their translations into one language.
struct Translations {
  std::string language;  ///< empty if a file does not name it
  std::vector<TranslationUnit> units;
  std::string catalogue{};  ///< the name of the catalogue; empty if read from a file
};

}  // namespace zk::tools
