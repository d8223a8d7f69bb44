#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Json.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

using Json = nlohmann::json;

constexpr std::size_t kDeepest = 100;

/// Returns the offset after the token of well-formed JSON that begins at `begin`.
std::size_t endOfToken(std::string_view text, std::size_t begin) {
  if (text[begin] != '"') {
    const bool isBracket = std::string_view("[]{}").find(text[begin]) != std::string_view::npos;
    return isBracket ? begin + 1 : std::min(text.find_first_of(" \t\r\n,:]}", begin), text.size());
  }
  std::size_t end = begin + 1;
  while (text[end] != '"') end += text[end] == '\\' ? std::size_t{2} : 1;
  return end + 1;
}

}  // namespace

/// Builds values from the parser's events. Reads the text along with the parser, which does not report where tokens begin.
class JsonBuilder : public nlohmann::json_sax<Json> {
 public:
  JsonBuilder(std::string_view text, std::string_view file, Position begin)
      : text_(text), file_(file), positions_(text, begin) {
    if (text.starts_with(kByteOrderMark)) end_ = kByteOrderMark.size();
  }

  [[nodiscard]] JsonValue take() { return std::move(root_); }

  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override {
    return std::in_range<std::int64_t>(value) ? add(static_cast<std::int64_t>(value)) : add(nullptr);
  }
  bool number_float(number_float_t /*value*/, const string_t& /*spelled*/) override { return add(nullptr); }
  bool string(string_t& value) override { return add(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return add(nullptr); }
  bool start_array(std::size_t /*size*/) override { return open(JsonValue::Elements()); }
  bool start_object(std::size_t /*size*/) override { return open(JsonValue::Members()); }
  bool end_array() override { return close(); }
  bool end_object() override { return close(); }
  bool key(string_t& name) override {
    const Position at = nextToken();
    std::get<JsonValue::Members>(open_.back().content_).push_back({name, at, {}});
    return true;
  }
  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const Json::exception& error) override {
    if (Diagnostics conflicts = mergeConflictsIn(text_, std::string(file_)); !conflicts.empty())
      throw CommandFailed{std::move(conflicts)};
    const bool isTooLarge = dynamic_cast<const Json::out_of_range*>(&error) != nullptr;
    tools::fail(
        std::string(file_), positions_.at(std::max<std::size_t>(position, 1) - 1),
        isTooLarge ? "the number is too large; write a smaller one" : "invalid JSON; correct the syntax");
  }

 private:
  Position nextToken() {
    const std::size_t begin = text_.find_first_not_of(" \t\r\n,:", end_);
    end_ = endOfToken(text_, begin);
    return positions_.at(begin);
  }

  JsonValue valueOf(JsonValue::Content content) {
    JsonValue value;
    value.file_ = file_;
    value.at_ = nextToken();
    value.content_ = std::move(content);
    return value;
  }

  bool store(JsonValue value) {
    if (open_.empty()) {
      root_ = std::move(value);
    } else if (auto* const list = std::get_if<JsonValue::Elements>(&open_.back().content_)) {
      list->push_back(std::move(value));
    } else {
      std::get<JsonValue::Members>(open_.back().content_).back().value = std::move(value);
    }
    return true;
  }

  bool add(JsonValue::Content content) { return store(valueOf(std::move(content))); }

  bool open(JsonValue::Content content) {
    open_.push_back(valueOf(std::move(content)));
    if (open_.size() > kDeepest) open_.back().fail("nested too deeply; remove some of the levels");
    return true;
  }

  bool close() {
    nextToken();
    JsonValue value = std::move(open_.back());
    open_.pop_back();
    return store(std::move(value));
  }

  std::string_view text_;
  std::string_view file_;
  PositionFinder positions_;
  std::size_t end_ = 0;  // of the last token
  JsonValue::Elements open_;
  JsonValue root_;
};

JsonValue JsonValue::parse(std::string_view text, std::string_view file, Position begin) {
  JsonBuilder builder(text, file, begin);
  Json::sax_parse(text, &builder);
  return builder.take();
}

const std::string& JsonValue::nonEmptyText() const {
  if (text().empty()) fail("the text is empty; write one");
  return text();
}

std::vector<std::string> JsonValue::texts() const {
  std::vector<std::string> texts;
  for (const JsonValue& element : elements()) texts.push_back(element.nonEmptyText());
  return texts;
}

void JsonValue::failAt(Position at, std::string message) const {
  tools::fail(std::string(file_), at, std::move(message));
}

void storeMembers(const JsonValue& object, const std::vector<KnownMember>& known) {
  std::set<std::string_view> seen;
  for (const JsonMember& member : object.members()) {
    const auto isIt = [&](const KnownMember& one) { return one.name == member.name; };
    const auto found = std::find_if(known.begin(), known.end(), isIt);
    if (found == known.end()) {
      std::vector<std::string_view> names;
      names.reserve(known.size());
      for (const KnownMember& one : known) names.push_back(one.name);
      object.failAt(member.nameAt,
                    fmt::format("unknown member \"{}\"; use one of {}", member.name, fmt::join(names, ", ")));
    }
    if (!seen.insert(member.name).second)
      object.failAt(member.nameAt, fmt::format("duplicate member \"{}\"; remove one", member.name));
    found->store(member.value);
  }
}

}  // namespace zk::tools
