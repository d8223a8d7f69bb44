#pragma once

#include <ZKStrings/tools/adoption/ForeignTexts.h>
#include <ZKStrings/tools/project/Catalogue.h>

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zk::tools {

/// Turns texts of another app into entries of a catalogue, and their translations into lines of its tables.
/// What it leaves out, it remarks on.
class AdoptedTexts {
 public:
  /// For a catalogue that has `present` already. `remarks` must outlive this.
  AdoptedTexts(const Catalogue& present, Faults& remarks);

  /// The entry for the English texts of `source`; nothing when they cannot make one.
  [[nodiscard]] std::optional<Entry> entryFor(const ForeignEntry& source);
  /// Whether `entryFor` has made one for `key`.
  [[nodiscard]] bool has(const std::string& key) const { return known_.contains(key); }
  /// The lines of a table for the texts of an entry that `entryFor` has made, by the looked-up key; in
  /// English and in other languages alike.
  [[nodiscard]] std::map<std::string, std::string> linesFor(const ForeignEntry& translation);

 private:
  struct Known {
    bool isPlural;
    std::size_t arguments;
    std::set<std::size_t> places;  // of the arguments that the English text has
  };

  void remark(Severity severity, const ForeignText& text, std::string message);
  std::optional<std::string> converted(const ForeignText& text, const Known& known);
  [[nodiscard]] std::string whyRefused(const Entry& entry) const;

  Faults& remarks_;
  std::set<std::string> accessors_;     // the names of those there are
  std::set<std::string> lookedUp_;      // the keys of tables that they look up
  std::map<std::string, Known> known_;  // by key
};

}  // namespace zk::tools
