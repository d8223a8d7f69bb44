#pragma once

#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/tools/project/Catalogue.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zk::tools {

/// The texts of a project as its app shows them: the engine looks them up and fills in example values.
class ShownTexts {
 public:
  /// Opens the resources of the project at `root`. `english`, the project's texts, must outlive this object.
  /// Throws `CommandFailed` if Base.lproj is missing or cannot be opened: the engine cannot run without it.
  ShownTexts(const std::string& root, const EnglishTexts& english);

  /// Sets the language of the texts, "Base" or a code, for the whole process.
  void choose(std::string_view language) const;

  /// The text of the key of `english` in the chosen language. With `isMarked`, each value is U+FDD0, the placeholder's
  /// name, U+FDD1, the value, U+FDD2. Unicode reserves these noncharacters for internal use.
  [[nodiscard]] std::string text(const EnglishText& english, bool isMarked) const;

 private:
  using Values = std::vector<std::pair<std::string, std::string>>;

  [[nodiscard]] std::string filledIn(const EnglishText& english, std::optional<std::int64_t> count,
                                     const Values& values) const;
  [[nodiscard]] Values valuesFor(const EnglishText& english, std::optional<std::int64_t> count,
                                 bool isNested) const;
  [[nodiscard]] std::string textOf(const CatalogueSettings::Example& example) const;

  const Bundle* resources_;
  const EnglishTexts& english_;
};

}  // namespace zk::tools
