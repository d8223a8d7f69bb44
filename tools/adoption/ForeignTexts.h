#pragma once

#include <ZKStrings/tools/support/Fault.h>
#include <ZKStrings/tools/support/Position.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// A text as another app's file has it.
struct ForeignText {
  std::string text;
  std::string file;
  Position at;
  std::vector<std::string> comments = {};
};

/// The texts of one key, by the name of the plural form: "zero", "one", "two", "few", "many" or "other"; ""
/// for a text without one.
struct ForeignEntry {
  std::string key;
  std::map<std::string, ForeignText, std::less<>> forms = {};

  [[nodiscard]] bool isPlural() const { return !forms.contains(""); }
};

/// The texts of one language of another app, in the order of its files.
struct ForeignTexts {
  std::vector<ForeignEntry> entries;
  Faults faults;  ///< what could not be read

  /// Reads the table `file` and, where there is one, the plural forms in the .stringsdict file beside it.
  /// Keys that end in a plural form's name are forms of one key, where `plurals` has it.
  [[nodiscard]] static ForeignTexts read(const std::string& file, const std::set<std::string>& plurals);
  /// The same for the language that the others are translated from: which keys are plural is seen from it. A
  /// key is when it has a form "_one" and a form "_other" or "_many"; "." may stand for "_".
  [[nodiscard]] static ForeignTexts readSource(const std::string& file);

  /// The keys that have plural forms.
  [[nodiscard]] std::set<std::string> plurals() const;
};

}  // namespace zk::tools
