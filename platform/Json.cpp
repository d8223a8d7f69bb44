#include <ZKStrings/platform/Json.h>
#include <ZKStrings/platform/TextEncoding.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace zk {

namespace {

constexpr std::size_t kDeepestKept = 100;  // so that no chain of destructors gets long
constexpr int kNumberOverflow = 406;       // the library's number for "a number beyond every double"

/// Builds a value from the events of the library's parser.
class Builder : public nlohmann::json_sax<nlohmann::json> {
 public:
  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(std::int64_t{value}); }
  bool number_unsigned(number_unsigned_t value) override {
    if (value <= INT64_MAX) return add(static_cast<std::int64_t>(value));
    return add(static_cast<double>(value));
  }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  bool string(string_t& value) override { return add(std::move(value)); }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override { return open(Dictionary()); }
  bool key(string_t& name) override {
    if (levels_.size() <= kDeepestKept) levels_.back().name = std::move(name);
    return true;
  }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(Value::List()); }
  bool end_array() override { return close(); }

  bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& fault) override {
    sawOverflow_ = fault.id == kNumberOverflow;
    return false;
  }

  Value takeValue() { return std::move(root_); }
  [[nodiscard]] bool sawOverflow() const { return sawOverflow_; }

 private:
  struct Level {
    Value value;
    std::string name;  // in a dictionary: the member whose value comes next
  };

  bool open(Value empty) {
    if (levels_.size() < kDeepestKept) {
      levels_.push_back({std::move(empty), {}});
    } else {
      ++unkept_;
    }
    return true;
  }

  bool close() {
    if (unkept_ > 0) {
      --unkept_;
      return true;
    }
    Value value = std::move(levels_.back().value);
    levels_.pop_back();
    return add(std::move(value));
  }

  bool add(Value value) {
    if (unkept_ > 0) return true;
    if (levels_.empty()) {
      root_ = std::move(value);
      return true;
    }
    Level& level = levels_.back();
    if (auto* list = level.value.as<Value::List>()) list->push_back(std::move(value));
    if (auto* dictionary = level.value.as<Dictionary>())
      dictionary->append(std::move(level.name), std::move(value));
    return true;
  }

  std::vector<Level> levels_;
  std::size_t unkept_ = 0;  // how many levels beyond the deepest kept one are open
  Value root_;
  bool sawOverflow_ = false;
};

/// The length of the JSON number at the beginning of `text`; 0 when none stands there.
std::size_t numberLength(std::string_view text) {
  std::size_t at = text.starts_with('-') ? 1 : 0;
  const auto skipDigits = [&] {
    const std::size_t begin = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
    return at > begin;
  };
  const bool startsWithZero = text.substr(at).starts_with('0');
  const std::size_t integer = at;
  if (!skipDigits() || (startsWithZero && at > integer + 1)) return 0;
  if (text.substr(at).starts_with('.')) {
    ++at;
    if (!skipDigits()) return 0;
  }
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (!skipDigits()) return 0;
  }
  return at;
}

/// Overwrites the numbers beyond every double, for which the library would give up the whole text, by nulls.
void blankHugeNumbers(std::string& text) {
  bool inString = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') inString = !inString;
    if (inString && text[at] == '\\') ++at;
    const std::size_t length = inString ? 0 : numberLength(std::string_view(text).substr(at));
    if (length == 0) continue;
    if (std::isinf(std::strtod(text.c_str() + at, nullptr))) {
      text.replace(at, length, std::string("null").append(length - 4, ' '));
    }
    at += length - 1;
  }
}

}  // namespace

std::optional<Value> parseJson(std::string bytes) {
  std::optional<std::string> text = decodedText(std::move(bytes), UnmarkedText::mayBeUtf16Or32);
  if (!text) return std::nullopt;
  Builder builder;
  if (nlohmann::json::sax_parse(*text, &builder)) return builder.takeValue();
  if (!builder.sawOverflow()) return std::nullopt;

  blankHugeNumbers(*text);
  Builder second;
  if (!nlohmann::json::sax_parse(*text, &second)) return std::nullopt;
  return second.takeValue();
}

}  // namespace zk
