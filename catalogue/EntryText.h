#pragma once

#include <ZKStrings/engine/Substitutions.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zk {

/// `localizedString`, as the accessors call it. There are hundreds of accessors, and their code is most of the
/// library: here they hand over what registers hold, and own nothing that must be destroyed afterwards.
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english,
                                    std::initializer_list<Substitutions::Pair> pairs);
[[nodiscard]] std::string entryText(std::string_view key, std::string_view english, std::int64_t count,
                                    std::initializer_list<Substitutions::Pair> pairs);

}  // namespace zk
