#pragma once

#include <ZKStrings/tools/support/Diagnostic.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zk::tools {

struct JsonMember;

/// A value of a JSON file, with its place in the file.
///
/// The functions that return the content throw `CommandFailed` if the value has another type.
class JsonValue {
 public:
  using Elements = std::vector<JsonValue>;
  using Members = std::vector<JsonMember>;  ///< in the order of the file

  /// Parses `text`, the content of `file`, whose first character is at `begin`. `file` must outlive the value. Throws
  /// `CommandFailed` with the place where the text stops being JSON or is nested more than 100 levels deep.
  [[nodiscard]] static JsonValue parse(std::string_view text, std::string_view file, Position begin = {1, 1});

  [[nodiscard]] Position at() const { return at_; }
  [[nodiscard]] bool isObject() const { return std::holds_alternative<Members>(content_); }
  [[nodiscard]] bool isTrue() const { return std::get_if<bool>(&content_) && std::get<bool>(content_); }

  [[nodiscard]] const std::string& text() const { return contentAs<std::string>("a text, \"...\""); }
  [[nodiscard]] const std::string& nonEmptyText() const;
  [[nodiscard]] std::vector<std::string> texts() const;  ///< each non-empty
  [[nodiscard]] bool boolean() const { return contentAs<bool>("true or false"); }
  [[nodiscard]] std::int64_t integer() const { return contentAs<std::int64_t>("an integer"); }
  [[nodiscard]] const Elements& elements() const { return contentAs<Elements>("an array, [...]"); }
  [[nodiscard]] const Members& members() const { return contentAs<Members>("an object, {...}"); }

  /// Throws `CommandFailed` with the place of this value.
  [[noreturn]] void fail(std::string message) const { failAt(at_, std::move(message)); }
  /// Throws `CommandFailed` with another place in the same file.
  [[noreturn]] void failAt(Position at, std::string message) const;

 private:
  friend class JsonBuilder;
  using Content = std::variant<std::nullptr_t, bool, std::int64_t, std::string, Elements, Members>;

  template <class Type>
  [[nodiscard]] const Type& contentAs(const char* example) const {
    const Type* const content = std::get_if<Type>(&content_);
    if (!content) fail(std::string("wrong type of value; write ") + example);
    return *content;
  }

  std::string_view file_;
  Position at_ = {1, 1};
  Content content_;
};

struct JsonMember {
  std::string name;
  Position nameAt;
  JsonValue value;
};

/// A member that an object may have, and the function that stores its value.
struct KnownMember {
  std::string_view name;
  std::function<void(const JsonValue& value)> store;
};

/// Stores the members of `object`. Throws `CommandFailed` for the first that is repeated, unknown or has a wrong value.
void storeMembers(const JsonValue& object, const std::vector<KnownMember>& known);

}  // namespace zk::tools
