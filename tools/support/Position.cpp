#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Position.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace zk::tools {

Position PositionFinder::at(std::size_t offset) {
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
  return PositionFinder(text).at(offset);
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    lines.push_back(line);
  }
  return lines;
}

}  // namespace zk::tools
