#pragma once

#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zk::tools {

/// A key that the module looks up, and its English text.
struct EnglishText {
  std::string key;
  const Entry* entry;
  const PluralForm* form;  ///< null for a text without a count
  std::string text;
  const CatalogueSettings* settings;

  /// The names of the placeholders that a translation may use: those of the text and, for a plural form, those of its
  /// entry.
  [[nodiscard]] std::vector<std::string_view> placeholders() const;
  /// The placeholder for the count: the first one for a number, or else the entry's only one if it has no example
  /// value. Empty if there is none, or if the text is not a plural form.
  [[nodiscard]] std::string_view countPlaceholder() const;
  /// The placeholder that a translation may leave out in `_zero` and `_one`, which may spell the number: the
  /// entry's only one, or that for the count. Empty in all other texts.
  [[nodiscard]] std::string_view dispensable() const;
};

/// The English texts of all keys that the module looks up, in catalogue order.
class EnglishTexts {
 public:
  /// `catalogue` must outlive the texts.
  explicit EnglishTexts(const Catalogue& catalogue);

  [[nodiscard]] const std::vector<EnglishText>& all() const { return texts_; }
  /// Returns the text of `key`; null if the module never looks it up.
  [[nodiscard]] const EnglishText* find(std::string_view key) const;

 private:
  std::vector<EnglishText> texts_;
  std::unordered_map<std::string, std::size_t> places_;
};

}  // namespace zk::tools
