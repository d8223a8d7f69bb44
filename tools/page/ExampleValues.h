#pragma once

#include <ZKStrings/tools/page/AppTexts.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace zk::tools {

/// The placeholder of `entry` that says its count; empty when none does, or the entry has no count.
[[nodiscard]] std::string_view countPlaceholder(const Entry& entry);

/// What an app might fill into the placeholders of `entry`, a name or an amount, in `language`: a placeholder
/// that takes the title of a document, for example, has it as it is translated. What says the count is that.
[[nodiscard]] Values exampleValues(const AppTexts& texts, const Catalogue& catalogue,
                                   std::string_view language, const Entry& entry,
                                   std::optional<std::int64_t> count);

}  // namespace zk::tools
