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

/// What one JSON object holds: members by name, in the order in which they were written.
///
///     const zk::Dictionary country = {{"name", "Austria"}, {"phoneCode", 43}, {"iso", "AT"}};
class Dictionary {
 public:
  /// A member's name and its value.
  using Member = std::pair<std::string, Value>;

  /// Without members.
  Dictionary();
  /// With `members`, in their order; a name may come twice.
  Dictionary(std::initializer_list<Member> members);

  /// Adds a member and gives its value, made of `content` in its place.
  template <class Content>
  Value& append(std::string_view name, Content&& content);

  /// The value of the member `name`, compared byte for byte; null when there is none. Of several the last
  /// counts.
  [[nodiscard]] const Value* find(std::string_view name) const;
  /// The same as `find`, and null also when the value is of another type than `Type`.
  template <class Type>
  [[nodiscard]] const Type* find(std::string_view name) const;

 private:
  std::vector<Member> members_;
};

/// The integers that are numbers, and neither a truth value nor a character.
template <class Type>
concept IntegerNumber = std::integral<Type> && !std::same_as<Type, bool> && !std::same_as<Type, char> &&
                        !std::same_as<Type, wchar_t> && !std::same_as<Type, char8_t> &&
                        !std::same_as<Type, char16_t> && !std::same_as<Type, char32_t>;

/// One JSON value: null, a boolean, a number, a text, a list or a dictionary.
class Value {
 public:
  /// The elements of a JSON array.
  using List = std::vector<Value>;

  /// Null.
  Value() = default;
  /// Null.
  Value(std::nullptr_t) {}
  /// Only a boolean itself: a pointer or a number does not become one.
  Value(std::same_as<bool> auto value) : value_(value) {}
  /// An integer of any type; one beyond `std::int64_t` becomes the nearest `double`, as in JSON.
  Value(IntegerNumber auto value) {
    if (std::in_range<std::int64_t>(value)) {
      value_ = static_cast<std::int64_t>(value);
    } else {
      value_ = static_cast<double>(value);
    }
  }
  /// A number that is no integer, also when it has no fraction.
  Value(std::floating_point auto value) : value_(static_cast<double>(value)) {}
  /// A text, in UTF-8.
  Value(const char* value) : value_(std::string(value)) {}
  /// A text, in UTF-8.
  Value(std::string_view value) : value_(std::string(value)) {}
  /// A text, in UTF-8.
  Value(const std::string& value) : value_(value) {}
  /// A text, in UTF-8.
  Value(std::string&& value) : value_(std::move(value)) {}
  /// A list.
  Value(List value) : value_(std::move(value)) {}
  /// A dictionary.
  Value(Dictionary value) : value_(std::move(value)) {}

  /// The value as `Type` (`bool`, `std::int64_t`, `double`, `std::string`, `List` or `Dictionary`); null when
  /// it is of another type. Nothing is converted: the text "44" is no number and 44.0 is no integer.
  template <class Type>
  [[nodiscard]] const Type* as() const {
    return std::get_if<Type>(&value_);
  }
  /// The same, to be changed in place.
  template <class Type>
  [[nodiscard]] Type* as() {
    return std::get_if<Type>(&value_);
  }

 private:
  std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, List, Dictionary> value_ = nullptr;
};

inline Dictionary::Dictionary() : members_() {
}

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
