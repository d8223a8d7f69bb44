#pragma once

#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Position.h>

#include <cstddef>
#include <string_view>

namespace zk::tools {

/// Finds the places in the file of the characters of an entry's text, and reads the text only once.
class TextPlaces {
 public:
  /// `entry` must outlive the places.
  explicit TextPlaces(const TableEntry& entry);
  /// The place of the character at the byte `offset` of the text; of the text's end for an offset beyond it.
  /// Offsets must be queried in rising order.
  [[nodiscard]] Position at(std::size_t offset);

 private:
  void readOn();

  std::string_view spelled_;
  PositionFinder positions_;
  TableEntry::Span piece_ = {0, 0};  // of `spelled_`: an escape at most, and what follows it up to the next
  TableEntry::Span text_ = {0, 0};   // the part of the text that the piece spells
};

}  // namespace zk::tools
