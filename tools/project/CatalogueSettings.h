#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// Returns the name of the function or argument for `name`, a key or a placeholder. A reserved word of C++ gets an
/// underscore, and other characters than letters and digits are replaced as in keys. Empty if there is no letter or digit.
[[nodiscard]] std::string identifierFor(std::string_view name);

/// The name of a catalogue: its accessors are functions of the class `nameSpace::name`, and its resources are in
/// share/`name`. By default, it is the module's own catalogue.
struct CatalogueName {
  static constexpr const char* kModule = "ZKStrings";

  std::string name = kModule;
  std::string nameSpace = "zk";  ///< empty for none; "myapp::texts" for one in another

  [[nodiscard]] bool isModule() const { return name == kModule && nameSpace == "zk"; }
  [[nodiscard]] std::string headerFile() const { return "catalogue/" + name + ".h"; }
  [[nodiscard]] std::string sourceFile() const { return "catalogue/" + name + ".cpp"; }

  /// Returns why C++ cannot use the name, and what to do; empty if it can.
  [[nodiscard]] std::string error() const;
};

/// The settings of a catalogue, which catalogue/catalogue.json holds:
///
///     {
///       "name": "Texts",
///       "namespace": "myapp",
///       "appName": "My App",
///       "names": ["My App", "PayPal"],
///       "rulesOff": ["apostrophe"],
///       "numberPlaceholders": ["days"],
///       "examples": {"user": "kim", "document": {"key": "Terms"}, "items": {"key": "stars", "count": 3}}
///     }
///
/// A project without the file is the module's own catalogue, without further settings.
struct CatalogueSettings {
  static constexpr const char* kFile = "catalogue/catalogue.json";

  struct RuleOff {
    std::string name;
    Position at;
  };
  /// An example value of a placeholder: a text, or the text of an entry of the catalogue.
  struct Example {
    std::string text;
    std::string key;
    std::optional<std::int64_t> count;
  };

  CatalogueName name;
  std::string appName;             ///< shown to people; by default the name of the class
  std::vector<std::string> names;  ///< names that stay as they are in all languages
  std::vector<RuleOff> rulesOff;   ///< rules of `check` that do not apply to this catalogue
  std::vector<std::string>
      numberPlaceholders;  ///< placeholders for a number, other than those that end in "Count"
  std::map<std::string, Example, std::less<>>
      examples;  ///< by placeholder, or by "KEY.placeholder" for one entry

  /// Reads the settings of the project at `root`. Throws `CommandFailed` if the file cannot be read or is wrong.
  [[nodiscard]] static CatalogueSettings read(const std::string& root);

  /// Returns whether `placeholder` is a number.
  [[nodiscard]] bool isNumber(std::string_view placeholder) const;
  /// Returns the words of `text` that need translation: all except `names`, numbers and single letters.
  [[nodiscard]] std::vector<std::string_view> wordsToTranslate(std::string_view text) const;
  /// Returns whether `text` has no words to translate apart from placeholders.
  [[nodiscard]] bool isSameEverywhere(std::string_view text) const;
};

}  // namespace zk::tools
