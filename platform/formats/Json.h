#pragma once

#include <ZKStrings/platform/Dictionary.h>

#include <optional>
#include <string>

namespace zk {

/// The value that one JSON text spells, in UTF-8, UTF-16 or UTF-32, in either byte order, with or without a
/// byte-order mark. Any value may stand at the top, not only lists and dictionaries. Nothing when the bytes
/// are not a JSON text.
///
/// A number that is no integer of 64 bits becomes a `double`, and one beyond every `double` becomes null.
/// What is nested deeper than 100 levels is checked like the rest, but left out of the value.
[[nodiscard]] std::optional<Value> parseJson(std::string bytes);

}  // namespace zk
