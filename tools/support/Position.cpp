#include <ZKStrings/tools/support/Position.h>

namespace zk::tools {

namespace {

bool isContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

Position PositionTeller::at(std::size_t offset) {
  for (; at_ < offset && at_ < text_.size(); ++at_) {
    if (text_[at_] == '\n') {
      position_ = {position_.line + 1, 1};
    } else if (!isContinuationByte(text_[at_])) {
      ++position_.column;
    }
  }
  return position_;
}

Position positionOf(std::string_view text, std::size_t offset) {
  return PositionTeller(text).at(offset);
}

}  // namespace zk::tools
