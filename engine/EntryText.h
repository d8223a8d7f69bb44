#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zk {

/// Calls `localizedString` on behalf of an accessor. Most of the library's code is accessors, so each is kept small: it
/// passes its arguments in registers, and owns nothing that must be destroyed.
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english,
                                    std::initializer_list<Substitutions::Pair> pairs);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count,
                                    std::initializer_list<Substitutions::Pair> pairs);

}  // namespace zk
