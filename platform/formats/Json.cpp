#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include <locale.h>
#include <nlohmann/json.hpp>

namespace zk {

namespace {

/// So that no chain of destructors gets long.
constexpr std::size_t kDeepestKept = 100;
/// The library's number for "a number beyond every double".
constexpr int kNumberOverflow = 406;

/// Builds a value in its place from the events of the library's parser.
class Builder final : public nlohmann::json_sax<nlohmann::json> {
 public:
  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(std::int64_t{value}); }
  bool number_unsigned(number_unsigned_t value) override {
    if (value <= INT64_MAX) return add(static_cast<std::int64_t>(value));
    return add(static_cast<double>(value));
  }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  // Copied, since the parser goes on with its buffer.
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

  bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& fault) override {
    sawOverflow_ = fault.id == kNumberOverflow;
    return false;
  }

  Value takeValue() { return std::move(root_); }
  [[nodiscard]] bool sawOverflow() const { return sawOverflow_; }

 private:
  template <class Content>
  bool add(Content&& content) {
    if (unkept_ == 0) place(std::forward<Content>(content));
    return true;
  }

  /// Puts a value where it belongs: at the top, or into the innermost open list or dictionary.
  template <class Content>
  Value& place(Content&& content) {
    if (open_.empty()) return root_ = Value(std::forward<Content>(content));
    if (auto* const list = open_.back()->as<Value::List>())
      return list->emplace_back(std::forward<Content>(content));
    return open_.back()->as<Dictionary>()->append(name_, std::forward<Content>(content));
  }

  template <class Container>
  bool open(Container empty) {
    if (unkept_ > 0 || open_.size() == kDeepestKept) {
      ++unkept_;
    } else {
      open_.push_back(&place(std::move(empty)));
    }
    return true;
  }

  bool close() {
    if (unkept_ > 0) {
      --unkept_;
    } else {
      open_.pop_back();
    }
    return true;
  }

  Value root_{};
  std::vector<Value*> open_{};  // from the outermost on; nothing is added to one while a value within is open
  std::string name_{};          // of the member whose value comes next
  std::size_t unkept_ = 0;      // how many levels beyond the deepest kept one are open
  bool sawOverflow_ = false;
};

/// Whether `text` is one number of JSON, from its first character to its last.
bool isNumber(std::string_view text) {
  std::size_t at = text.starts_with('-') ? 1 : 0;
  const auto skipDigits = [&] {
    const std::size_t begin = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
    return at > begin;
  };
  const bool startsWithZero = text.substr(at).starts_with('0');
  const std::size_t integer = at;
  if (!skipDigits() || (startsWithZero && at > integer + 1)) return false;
  if (text.substr(at).starts_with('.')) {
    ++at;
    if (!skipDigits()) return false;
  }
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (!skipDigits()) return false;
  }
  return at == text.size();
}

/// Whether the number at `begin`, of `length` bytes, is beyond every double. One of which the C library takes
/// more, as it does of 0x1p1024, is not JSON.
bool isHuge(const char* begin, std::size_t length) {
  char* end = nullptr;
  return std::isinf(std::strtod(begin, &end)) && end == begin + length;
}

/// Overwrites the numbers beyond every double, for which the library would give up the whole text, by nulls.
void blankHugeNumbers(std::string& text) {
  bool inString = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') inString = !inString;
    if (inString && text[at] == '\\') ++at;
    if (inString) continue;
    const std::size_t end = std::min(text.find_first_not_of("+-.0123456789eE", at), text.size());
    if (end == at) continue;
    const std::size_t length = end - at;
    if (isNumber({text.data() + at, length}) && isHuge(text.data() + at, length)) {
      text.replace(at, length, std::string("null").append(length - 4, ' '));
    }
    at = end - 1;
  }
}

/// As long as it lives, this thread reads numbers with a decimal point, whatever the process's locale says.
class PlainNumbers {
 public:
  PlainNumbers() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)) {
    if (!plain_) throw std::bad_alloc();
    before_ = uselocale(plain_);
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;
  ~PlainNumbers() {
    uselocale(before_);
    freelocale(plain_);
  }

 private:
  locale_t plain_;
  locale_t before_ = nullptr;
};

/// Whether the library would pass over characters that are not JSON: a byte-order mark at the beginning, and
/// all that follows a NUL.
bool holdsUnseen(std::string_view text) {
  return text.starts_with(kByteOrderMark) || text.find('\0') != std::string_view::npos;
}

}  // namespace

std::optional<Value> parseJson(std::string bytes) {
  std::optional<std::string> text = decodedText(std::move(bytes), UnmarkedText::mayBeUtf16Or32);
  if (!text || holdsUnseen(*text)) return std::nullopt;
  const PlainNumbers plainNumbers;
  Builder builder;
  if (nlohmann::json::sax_parse(*text, &builder)) return builder.takeValue();
  if (!builder.sawOverflow()) return std::nullopt;

  blankHugeNumbers(*text);
  Builder second;
  if (!nlohmann::json::sax_parse(*text, &second)) return std::nullopt;
  return second.takeValue();
}

}  // namespace zk
