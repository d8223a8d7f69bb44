#pragma once

#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

/// A rule of `check`.
struct Rule {
  std::string_view name;  ///< the name that switches it off
  Severity severity;
  std::string_view summary;  ///< what it finds
};

/// A place where a rule is broken. The checker adds file, rule and severity.
struct Finding {
  Position at;
  std::string message;                ///< what is wrong; what to do
  const TableEntry* entry = nullptr;  ///< the entry whose comments can switch the rule off
};

/// Collects findings. Messages are format strings of {fmt}.
class Findings {
 public:
  /// Adds a finding that does not belong to an entry.
  template <class... Arguments>
  void add(Position at, fmt::format_string<Arguments...> message, Arguments&&... arguments) {
    all_.push_back({at, fmt::format(message, std::forward<Arguments>(arguments)...)});
  }
  /// Adds a finding for the place `at` in `entry` or its comments.
  template <class... Arguments>
  void add(const TableEntry& entry, Position at, fmt::format_string<Arguments...> message,
           Arguments&&... arguments) {
    all_.push_back({at, fmt::format(message, std::forward<Arguments>(arguments)...), &entry});
  }
  /// Adds a finding for the byte `offset` of the text of `entry`.
  template <class... Arguments>
  void add(const TableEntry& entry, std::size_t offset, fmt::format_string<Arguments...> message,
           Arguments&&... arguments) {
    add(entry, placeOf(entry, offset), message, std::forward<Arguments>(arguments)...);
  }
  /// Adds a finding for the text of `entry`.
  template <class... Arguments>
  void add(const TableEntry& entry, fmt::format_string<Arguments...> message, Arguments&&... arguments) {
    add(entry, entry.textAt, message, std::forward<Arguments>(arguments)...);
  }

  [[nodiscard]] std::vector<Finding>& all() { return all_; }

 private:
  /// Reads the text again only if it is another entry's, or if the offset is before the last one.
  Position placeOf(const TableEntry& entry, std::size_t offset) {
    if (!places_ || entry_ != &entry || offset < offset_) places_.emplace(entry);
    entry_ = &entry;
    offset_ = offset;
    return places_->at(offset);
  }

  std::vector<Finding> all_;
  const TableEntry* entry_ = nullptr;
  std::size_t offset_ = 0;
  std::optional<TextPlaces> places_;
};

/// A rule and the function that finds where a `Subject` breaks it.
template <class Subject>
struct RuleFor : Rule {
  void (*find)(const Subject& subject, Findings& findings);
};

}  // namespace zk::tools
