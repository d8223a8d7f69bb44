#pragma once

#include <ZKStrings/platform/Export.h>

#include <concepts>
#include <cstddef>
#include <string_view>

namespace zk {

/// A parameter for a text in UTF-8: a literal, a `std::string`, or anything else that converts to `std::string_view`. It
/// does not own the text, which must outlive it.
///
/// A number is not a text: `badgeCount_Badges(0, 0)` does not compile. With `std::string_view`, it would compile, and
/// the first 0 would be a null pointer.
class Text {
 public:
  /// Constructs a view of `text`.
  template <std::convertible_to<std::string_view> Spelling>
  constexpr Text(const Spelling& text ZK_REFERRED_TO) : view_(text) {}
  /// A null pointer is not a valid text.
  Text(std::nullptr_t) = delete;

  /// The viewed text.
  constexpr operator std::string_view() const { return view_; }

 private:
  std::string_view view_;
};

}  // namespace zk
