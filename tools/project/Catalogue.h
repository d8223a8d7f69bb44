#pragma once

#include <ZKStrings/tools/project/CatalogueSettings.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zk::tools {

/// One plural form of a counted text.
struct PluralForm {
  std::string_view suffix;  ///< appended to the entry's key: "_few"
  std::string_view counts;  ///< the counts that use this form, for people: "3 to 5"
  std::int64_t example;     ///< one of those counts
};

/// The plural forms of every counted text, the same in every language.
inline constexpr PluralForm kPluralForms[] = {
    {"_zero", "0", 0}, {"_one", "1", 1}, {"_two", "2", 2}, {"_few", "3 to 5", 4}, {"_many", "6 or more", 11}};

/// The English plural forms of a text, in the order of `kPluralForms`. One that is not set is the same as the text.
using PluralForms = std::array<std::optional<std::string>, std::size(kPluralForms)>;

/// One entry of the catalogue, as catalogue/entries.json holds it.
struct Entry {
  /// What an entry keeps although it breaks a rule: its key, or its key and its place in the file.
  enum class Kept { nothing, key, place };

  std::string key;
  std::string text;  ///< the English default
  bool plural = false;
  PluralForms forms = {};  ///< of a counted entry
  Kept kept = Kept::nothing;
  std::string comment = {};  ///< for translators: where the text appears, what it means; may be empty
  std::size_t max = 0;       ///< the most characters that fit where the text appears; 0 for no limit
  std::size_t line = 0;      ///< in entries.json

  /// The comment and the limit as one text for translators. May be empty.
  [[nodiscard]] std::string context() const;
  /// The keys under which tables have the text: its key, or those of its five plural forms.
  [[nodiscard]] std::vector<std::string> lookedUpKeys() const;
};

/// All texts of the app, in catalogue order.
class Catalogue {
 public:
  /// Reads and checks entries.json and catalogue.json in the project at `root`. Throws `CommandFailed` with all that
  /// is wrong in the first, or with the first error in the second.
  [[nodiscard]] static Catalogue read(const std::string& root);
  /// Reads and checks the contents of an entries.json.
  [[nodiscard]] static Catalogue parse(std::string_view json);
  /// Reads entries.json after manual edits or a merge: sorts the entries, drops repeated ones and ignores missing commas. An
  /// entry that `isKnown` accepts keeps its key although its text has changed. Throws `CommandFailed` if something else is wrong.
  [[nodiscard]] static Catalogue readEdited(const std::string& root,
                                            const std::function<bool(const Entry&)>& isKnown);

  /// Returns the first error in `entry` itself, and what to do; empty if it has none.
  [[nodiscard]] static std::string errorIn(const Entry& entry);

  [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }
  [[nodiscard]] std::vector<Entry>& entries() { return entries_; }
  [[nodiscard]] const CatalogueSettings& settings() const { return settings_; }

  /// Sorts the entries by key without regard to case. One that keeps its place stays after the one before it.
  void sort();

  /// The contents of entries.json for this catalogue.
  [[nodiscard]] std::string toJson() const;

  static constexpr const char* kFile = "catalogue/entries.json";

 private:
  std::vector<Entry> entries_;
  CatalogueSettings settings_;
};

/// Marks the key of `entry` as kept if it is not the key derived from the text, and removes the mark otherwise.
void keepKeyIfNeeded(Entry& entry);

/// A key that the module looks up, and its English text.
struct EnglishText {
  std::string key;
  const Entry* entry;
  const PluralForm* form;  ///< null for a text without a count
  std::string text;
  const CatalogueSettings* settings;

  /// The names of the placeholders that a translation may use: those of the text and, for a plural form, those of its entry.
  [[nodiscard]] std::vector<std::string_view> placeholders() const;
  /// The placeholder for the count: the first one for a number, or else the entry's only one if it has no example
  /// value. Empty if there is none, or if the text is not a plural form.
  [[nodiscard]] std::string_view countPlaceholder() const;
  /// The placeholder that a translation may omit in `_zero` and `_one`, because it may spell the number: the only one
  /// of the entry, or the one for the count. Empty in all other texts.
  [[nodiscard]] std::string_view optionalPlaceholder() const;
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
