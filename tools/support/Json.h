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
/// The functions that return the content throw `CommandFailed`, which names the place and what to write there, if
/// the value is of another type.
class JsonValue {
 public:
  /// Parses `text`, the content of `file`, whose first character is at `begin`. `file` must outlive the value. Throws
  /// `CommandFailed` with the place where the text stops being JSON or is nested more than 100 levels deep.
  [[nodiscard]] static JsonValue parse(std::string_view text, std::string_view file, Position begin = {1, 1});

  [[nodiscard]] Position at() const { return at_; }
  [[nodiscard]] bool isObject() const;
  [[nodiscard]] bool isTrue() const;

  [[nodiscard]] const std::string& text() const;
  [[nodiscard]] const std::string& nonEmptyText() const;
  [[nodiscard]] std::vector<std::string> texts() const;  ///< each non-empty
  [[nodiscard]] bool boolean() const;
  [[nodiscard]] std::int64_t integer() const;
  [[nodiscard]] const std::vector<JsonValue>& elements() const;
  [[nodiscard]] const std::vector<JsonMember>& members() const;  ///< in the order of the file

  /// Throws `CommandFailed` with the place of this value.
  [[noreturn]] void fail(std::string message) const { failAt(at_, std::move(message)); }
  /// Throws `CommandFailed` with another place in the same file.
  [[noreturn]] void failAt(Position at, std::string message) const;

 private:
  friend class JsonBuilder;
  using Content = std::variant<std::nullptr_t, bool, std::int64_t, std::string, std::vector<JsonValue>,
                               std::vector<JsonMember>>;

  template <class Type>
  [[nodiscard]] const Type& contentAs(const char* example) const;

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
