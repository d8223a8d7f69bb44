#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// If the locale's decimal separator has several bytes, an assertion fails. Without it, only a number's fraction is lost.
#define JSON_ASSERT(condition) static_cast<void>(0)
#include <nlohmann/json.hpp>

namespace zk {

namespace {

/// Limits the recursion of destructors.
constexpr std::size_t kDeepestKept = 100;

/// Builds a value in place from the events of the library's parser.
class Builder final : public nlohmann::json_sax<nlohmann::json> {
 public:
  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override { return add(value); }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  // Copied, because the parser reuses its buffer.
  bool string(string_t& value) override { return add(std::as_const(value)); }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override { return open(Dictionary()); }
  bool key(string_t& name) override {
    name_ = name;
    return true;
  }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(Value::List()); }
  bool end_array() override { return close(); }

  bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
    return false;
  }

  Value takeValue() { return std::move(root_); }

 private:
  template <class Content>
  bool add(Content&& content) {
    place(std::forward<Content>(content));
    return true;
  }

  /// Adds a value at the top, or to the innermost open list or dictionary. Returns null if that is not kept.
  template <class Content>
  Value* place(Content&& content) {
    if (open_.empty()) return &(root_ = Value(std::forward<Content>(content)));
    if (!open_.back()) return nullptr;
    if (auto* const list = open_.back()->as<Value::List>())
      return &list->emplace_back(std::forward<Content>(content));
    return &open_.back()->as<Dictionary>()->append(name_, std::forward<Content>(content));
  }

  template <class Container>
  bool open(Container empty) {
    open_.push_back(open_.size() < kDeepestKept ? place(std::move(empty)) : nullptr);
    return true;
  }

  bool close() {
    open_.pop_back();
    return true;
  }

  Value root_{};
  /// Outermost first; null for levels that are not kept. Adding an element may move only elements that are closed.
  std::vector<Value*> open_{};
  std::string name_{};  // of the member whose value comes next
};

}  // namespace

std::optional<Value> parseJson(std::string bytes) {
  const std::optional<std::string> text = decodedText(std::move(bytes));
  // The library would ignore a byte-order mark and everything after a NUL, which are not JSON.
  if (!text || text->starts_with(kByteOrderMark) || text->find('\0') != text->npos) return std::nullopt;
  Builder builder;
  if (!nlohmann::json::sax_parse(*text, &builder)) return std::nullopt;
  return builder.takeValue();
}

}  // namespace zk
