#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zk {

/// Call `localizedString` for an accessor. The code of the accessors is most of the library, so it is kept small: they pass
/// registers and own nothing that must be destroyed.
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english,
                                    std::initializer_list<Substitutions::Pair> pairs);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count,
                                    std::initializer_list<Substitutions::Pair> pairs);

}  // namespace zk
