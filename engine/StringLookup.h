#pragma once

#include <ZKStrings/engine/Substitutions.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

/// Returns the finished text of one entry: looked up in the table of the language that `Current::language` prefers, with
/// the placeholders filled in. For a player who prefers German,
///
///     zk::localizedString("badgeCount_Badges", "%{badgeCount} Badges", 4, {{"badgeCount", "4"}})
///
/// returns "4 Abzeichen".
///
/// - `key` is the entry's key. If there is a count, the table is searched for the key with the count's suffix: "_zero",
///   "_one", "_two", "_few" (3 to 5) or "_many" (6 or more, and negative counts).
/// - `defaultValue` is the English text, which is used if the table does not have the key. If it is empty, the key is
///   used.
/// - `count` selects the plural form. It is not filled in anywhere.
/// - `substitutions` are the texts for the placeholders. Placeholders without a text stay as they are.
///
/// All texts are UTF-8. Bytes that are not UTF-8 stay as they are. Returns the English text while the table temporarily
/// cannot be opened.
///
/// Thread-safe. Throws std::bad_alloc if memory runs out. Stops the process, after one line on standard error, if
/// `Current::language` has not been assigned. Stops the process silently if Base.lproj is needed but missing.
[[nodiscard]] ZK_EXPORT std::string localizedString(std::string_view key, std::string_view defaultValue,
                                                    std::optional<std::int64_t> count,
                                                    const Substitutions& substitutions);

/// Returns the finished text of one entry of your own catalogue, whose language directories, such as Base.lproj, are in
/// `resources`. Otherwise works like the overload without `resources`. If `resources` is null, the English text is used.
///
///     const zk::Bundle& texts = zk::Bundle::bundleForClass(typeid(MyTexts), "MyTexts");
///     zk::localizedString(&texts, "Hello", "Hello", std::nullopt, {})
///
/// Thread-safe. Throws std::bad_alloc if memory runs out. Stops the process if `Current::language` has not been assigned,
/// or if Base.lproj is needed but missing.
[[nodiscard]] ZK_EXPORT std::string localizedString(const Bundle* resources, std::string_view key,
                                                    std::string_view defaultValue,
                                                    std::optional<std::int64_t> count,
                                                    const Substitutions& substitutions);

}  // namespace zk
