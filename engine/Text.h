#pragma once

#include <ZKStrings/platform/Export.h>

#include <concepts>
#include <cstddef>
#include <string_view>

namespace zk {

/// A text that a caller hands over for the time of the call: whatever converts to `std::string_view` (a
/// literal, a `std::string`), in UTF-8. It views the text and owns nothing. A number is no text: where
/// `badgeCount_Badges(0, 0)` would compile for a plain `std::string_view`, and take the first 0 for a null
/// pointer, it does not compile here.
class Text {
 public:
  /// Views `spelling`, which must outlive it.
  template <std::convertible_to<std::string_view> Spelling>
  constexpr Text(const Spelling& spelling ZK_REFERRED_TO) : view_(spelling) {}
  /// Nothing is no text.
  Text(std::nullptr_t) = delete;

  /// The text itself.
  constexpr operator std::string_view() const { return view_; }

 private:
  std::string_view view_;
};

}  // namespace zk
