#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/project/CatalogueSettings.h>
#include <ZKStrings/tools/texts/Placeholders.h>
#include <ZKStrings/tools/texts/PluralForms.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// One entry of the catalogue, as catalogue/entries.json holds it.
struct Entry {
  /// What of an old entry stays as it is although a rule says otherwise: its key, or its key and its place.
  enum class Kept { nothing, key, place };

  std::string key;
  std::string text;  ///< the English default
  bool plural = false;
  Kept kept = Kept::nothing;
  std::string comment = {};  ///< for translators: where the text appears, what it means; may be empty
  std::size_t max = 0;       ///< the most characters that fit where the text appears; 0 for no limit
  std::size_t line = 0;      ///< in entries.json

  /// What translators are told about the text: its comment, then its limit. May be empty.
  [[nodiscard]] std::string context() const;
};

/// All texts of the app, in catalogue order.
class Catalogue {
 public:
  /// Reads and checks entries.json and catalogue.json in the project at `root`. Throws `CommandFailed` with all that
  /// is wrong in the first, or with the first error in the second.
  [[nodiscard]] static Catalogue read(const std::string& root);
  /// The same of the text of such a file, which diagnostics call `file`.
  [[nodiscard]] static Catalogue parse(std::string_view json, const std::string& file);

  /// What is wrong with `entry` by itself, and what to do; empty when nothing is.
  [[nodiscard]] static std::string faultIn(const Entry& entry);

  [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }
  [[nodiscard]] std::vector<Entry>& entries() { return entries_; }
  [[nodiscard]] const CatalogueSettings& settings() const { return settings_; }

  /// The keys that the module looks up: those of entries without a count, and the five plural forms of the
  /// others, in catalogue order. `entry` is the one whose English text the form translates.
  struct LookedUpKey {
    std::string key;
    const Entry* entry;
    std::string_view suffix;  ///< of a plural form, or empty
  };
  [[nodiscard]] std::vector<LookedUpKey> lookedUpKeys() const;

  /// Where a new entry with `key` and `plural` belongs: the index of the entry before which it goes.
  [[nodiscard]] std::size_t placeFor(std::string_view key, bool plural) const;
  void insert(std::size_t index, Entry entry);

  /// The text of entries.json that holds this catalogue.
  [[nodiscard]] std::string toJson() const;

  static constexpr const char* kFile = "catalogue/entries.json";

 private:
  std::vector<Entry> entries_;
  CatalogueSettings settings_;
};

}  // namespace zk::tools
