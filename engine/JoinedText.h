#pragma once

#include <ZKStrings/platform/text/Bytes.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zk {

/// Pieces of text joined for the moment: on the stack when they are as short as keys and placeholders are, on
/// the heap when they are not.
class JoinedText {
 public:
  JoinedText(std::initializer_list<std::string_view> pieces) {
    std::size_t size = 0;
    for (const std::string_view piece : pieces) size += piece.size();
    char* at = short_;
    if (size > sizeof(short_)) {
      long_.resize(size);
      at = long_.data();
    }
    text_ = {at, size};
    for (const std::string_view piece : pieces) at = copyBytes(at, piece.data(), piece.size());
  }
  JoinedText(const JoinedText&) = delete;
  JoinedText& operator=(const JoinedText&) = delete;

  operator std::string_view() const { return text_; }

 private:
  char short_[120];
  std::string long_{};
  std::string_view text_{};
};

}  // namespace zk
