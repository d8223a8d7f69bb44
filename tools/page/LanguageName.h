#pragma once

#include <string>
#include <string_view>

namespace zk::tools {

/// What readers are told about the language of a table.
struct LanguageName {
  std::string tag;      ///< for the attribute `lang`: "de"; "en" for the English table
  std::string english;  ///< "German"
  std::string native;   ///< "Deutsch"
  bool isRightToLeft = false;
};

/// Of the table of `language`, "Base" or a code. A code that no language has is its own name.
[[nodiscard]] LanguageName nameOfLanguage(std::string_view language);

}  // namespace zk::tools
