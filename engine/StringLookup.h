#pragma once

#include <ZKStrings/engine/Substitutions.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

/// The finished text of one entry for the user: looked up in the table of the language that
/// `Current::language` prefers, with the placeholders filled in. For a player who prefers German,
///
///     zk::localizedString("badgeCount_Badges", "%{badgeCount} Badges", 4, {{"badgeCount", "4"}})
///
/// is "4 Abzeichen".
///
/// - `key` is the entry's key. With a count, the table is asked for the key and the count's suffix: "_zero",
///   "_one", "_two", "_few" (3 to 5) or "_many" (6 and more, and negative counts).
/// - `defaultValue` is the English text, for when the table has none for that key. When it is empty too, the
///   key is used.
/// - `count` chooses the plural form; it is not filled in anywhere.
/// - `substitutions` are the texts for the placeholders; those without one stay as they are.
///
/// All texts are UTF-8. Any thread may call it, at the same time as others. While the table cannot be opened
/// for want of file descriptors or memory, the text is the English one. The process stops when no
/// `Current::language` was assigned (with a message on standard error), and when Base.lproj is needed but
/// missing among the module's resources (in a function whose name says so).
[[nodiscard]] ZK_EXPORT std::string localizedString(std::string_view key, std::string_view defaultValue,
                                                    std::optional<std::int64_t> count,
                                                    const Substitutions& substitutions);

/// The same for a catalogue with resources of its own: looked up in `resources`, a directory with language
/// directories such as Base.lproj and de.lproj, for the same `Current::language` and by the same rules. Null
/// stands for resources that cannot be found for the moment; the text is then the English one.
///
///     const zk::Bundle& texts = zk::Bundle::bundleForClass(typeid(MyTexts), "MyTexts");
///     zk::localizedString(&texts, "Hello", "Hello", std::nullopt, {})
[[nodiscard]] ZK_EXPORT std::string localizedString(const Bundle* resources, std::string_view key,
                                                    std::string_view defaultValue,
                                                    std::optional<std::int64_t> count,
                                                    const Substitutions& substitutions);

}  // namespace zk
