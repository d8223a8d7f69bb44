#pragma once

#include <ZKStrings/platform/Dictionary.h>

#include <optional>
#include <string>

namespace zk {

/// Returns the value of one JSON text in UTF-8, UTF-16 or UTF-32, in either byte order, with or without a byte-order
/// mark. Any value may be at the top, not only lists and dictionaries. Returns nothing if the bytes are not a JSON
/// text, or if a number is larger than any `double`.
///
/// A number that is not a 64-bit integer becomes a `double`. Values nested deeper than 100 levels are checked, but
/// left out. Thread-safe.
[[nodiscard]] std::optional<Value> parseJson(std::string bytes);

}  // namespace zk
