#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zk {

class Value;

/// The members of one JSON object by name, in their order in the text.
///
///     const zk::Dictionary country = {{"name", "Austria"}, {"phoneCode", 43}, {"iso", "AT"}};
///
/// Different objects may be used on different threads at the same time.
class Dictionary {
 public:
  /// A member's name and its value.
  using Member = std::pair<std::string, Value>;

  /// Constructs an empty dictionary.
  Dictionary();
  /// Constructs a dictionary from `members`, in the given order. A name may occur twice.
  Dictionary(std::initializer_list<Member> members);

  /// Adds a member with a value made from `content`, and returns the value.
  template <class Content>
  Value& append(std::string_view name, Content&& content);

  /// Returns the value of the member `name`; null if there is none. Names are compared byte for byte. If a name occurs
  /// several times, the last member counts.
  [[nodiscard]] const Value* find(std::string_view name) const;
  /// Returns the value of the member `name` as `Type`; null if there is none or if it is of another type.
  template <class Type>
  [[nodiscard]] const Type* find(std::string_view name) const;

 private:
  std::vector<Member> members_;
};

/// Any integer type except `bool` and the character types.
template <class Type>
concept IntegerNumber = std::integral<Type> && !std::same_as<Type, bool> && !std::same_as<Type, char> &&
                        !std::same_as<Type, wchar_t> && !std::same_as<Type, char8_t> &&
                        !std::same_as<Type, char16_t> && !std::same_as<Type, char32_t>;

/// One JSON value: null, a boolean, a number, a text, a list or a dictionary.
class Value {
 public:
  /// The elements of a JSON array.
  using List = std::vector<Value>;

  /// Constructs null.
  Value(std::nullptr_t = nullptr) {}
  /// Constructs a boolean. A pointer or a number does not become one.
  Value(std::same_as<bool> auto value) : value_(value) {}
  /// Constructs an integer. An integer outside the range of `std::int64_t` becomes the nearest `double`, as in `parseJson`.
  Value(IntegerNumber auto value) {
    if (std::in_range<std::int64_t>(value)) {
      value_ = static_cast<std::int64_t>(value);
    } else {
      value_ = static_cast<double>(value);
    }
  }
  /// Constructs a floating-point number, even if it has no fraction.
  Value(std::floating_point auto value) : value_(static_cast<double>(value)) {}
  /// Constructs a text, in UTF-8.
  Value(std::convertible_to<std::string_view> auto const& value)
      : value_(std::in_place_type<std::string>, std::string_view(value)) {}
  /// Constructs a text, in UTF-8.
  Value(std::string&& value) : value_(std::move(value)) {}
  /// Constructs a list.
  Value(List value) : value_(std::move(value)) {}
  /// Constructs a dictionary.
  Value(Dictionary value) : value_(std::move(value)) {}

  /// Returns the value as `Type` (`bool`, `std::int64_t`, `double`, `std::string`, `List` or `Dictionary`); null if it is
  /// of another type. Nothing is converted: the text "44" is not a number, and 44.0 is not an integer.
  template <class Type>
  [[nodiscard]] const Type* as() const {
    return std::get_if<Type>(&value_);
  }
  /// Returns the value as `Type`, to be changed in place; null if it is of another type.
  template <class Type>
  [[nodiscard]] Type* as() {
    return std::get_if<Type>(&value_);
  }

 private:
  std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, List, Dictionary> value_ = nullptr;
};

inline Dictionary::Dictionary() = default;

inline Dictionary::Dictionary(std::initializer_list<Member> members) : members_(members) {
}

template <class Content>
Value& Dictionary::append(std::string_view name, Content&& content) {
  if (members_.empty()) members_.reserve(3);
  return members_.emplace_back(name, std::forward<Content>(content)).second;
}

inline const Value* Dictionary::find(std::string_view name) const {
  for (auto member = members_.rbegin(); member != members_.rend(); ++member) {
    if (member->first == name) return &member->second;
  }
  return nullptr;
}

template <class Type>
const Type* Dictionary::find(std::string_view name) const {
  const Value* value = find(name);
  return value ? value->as<Type>() : nullptr;
}

}  // namespace zk
