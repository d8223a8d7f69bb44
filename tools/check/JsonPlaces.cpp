#include <ZKStrings/tools/check/JsonPlaces.h>

#include <cstddef>
#include <sstream>
#include <vector>

namespace zk::tools {

namespace {

using Json = nlohmann::json;
using Event = Json::parse_event_t;

/// Follows the reader through a text and keeps where one value begins.
class Follower {
 public:
  explicit Follower(const Json::json_pointer& wanted) : wanted_(wanted) {}

  /// `end` is the offset behind what has just been read.
  void follow(Event event, const Json& parsed, std::size_t end) {
    switch (event) {
      case Event::key:
        here_.back() /= parsed.get<std::string>();
        return;
      case Event::object_start:
      case Event::array_start:
        begin(end - 1);
        open_.push_back({event == Event::array_start, 0});
        here_.push_back(here_.back());
        return nextElement();
      case Event::object_end:
      case Event::array_end:
        here_.pop_back();
        open_.pop_back();
        break;
      case Event::value:
        // Behind a number, the reader has seen the next character.
        begin(end - parsed.dump().size() - (parsed.is_number() ? 1 : 0));
        break;
    }
    finish();
  }

  [[nodiscard]] std::size_t offset() const { return offset_; }

 private:
  struct Container {
    bool isArray;
    std::size_t elements;
  };

  void begin(std::size_t offset) {
    if (here_.back() == wanted_) offset_ = offset;
  }

  void nextElement() {
    if (open_.back().isArray) here_.back() /= open_.back().elements++;
  }

  void finish() {
    if (open_.empty()) return;
    here_.back().pop_back();
    nextElement();
  }

  const Json::json_pointer& wanted_;
  std::vector<Container> open_;
  std::vector<Json::json_pointer> here_{Json::json_pointer()};  // the way to the value that comes next
  std::size_t offset_ = 0;
};

}  // namespace

Position placeInJson(const std::string& text, const Json::json_pointer& pointer) {
  std::istringstream stream(text);
  Follower follower(pointer);
  const auto follow = [&](int, Event event, const Json& parsed) {
    follower.follow(event, parsed, static_cast<std::size_t>(stream.tellg()));
    return true;
  };
  [[maybe_unused]] const Json content = Json::parse(stream, follow);
  return positionOf(text, follower.offset());
}

}  // namespace zk::tools
