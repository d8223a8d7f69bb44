#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace zk {

/// Returns the suffix of a key for `count`. It does not depend on the language.
[[nodiscard]] constexpr std::string_view pluralSuffix(std::int64_t count) {
  switch (count) {
    case 0:
      return "_zero";
    case 1:
      return "_one";
    case 2:
      return "_two";
    default:
      // 3, 4 or 5. Converted to an unsigned number, a negative count is much larger.
      return static_cast<std::uint64_t>(count) - 3 <= 2 ? "_few" : "_many";
  }
}

/// Returns the name of the directory for a language identifier such as "pt-BR": its first two characters, or "Base" for
/// English.
[[nodiscard]] inline std::string_view languageDirectoryName(std::string_view identifier) {
  const std::string_view code = firstTwoCharacters(identifier);
  return code.size() == 2 && code[0] == 'e' && code[1] == 'n' ? "Base" : code;
}

// A debugger shows the names of these functions, even if the library is stripped.

/// Stops the process, because the module's resources do not contain Base.lproj or were not found at all.
[[noreturn, gnu::cold, gnu::noinline]] ZK_EXPORT void baseLprojIsMissingAmongTheResources();

/// Stops the process, because the directory of a language was removed between two steps of a lookup.
[[noreturn, gnu::cold, gnu::noinline]] ZK_EXPORT void languageDirectoryHasVanished();

/// Returns the language directory of `bundle` to use: that of the first of `preferredLanguages` whose directory exists
/// and opens, or else Base.lproj. Stops the process if Base.lproj is needed but missing or not a directory, or if a
/// directory vanishes between two steps.
///
/// `PlatformBundle` is `Bundle`, or a test class. Each directory is looked up once to see whether it exists. If so, it is
/// looked up again and opened. For the chosen directory, this second step is repeated.
template <class PlatformBundle>
const PlatformBundle& chosenLanguageBundle(const PlatformBundle& bundle,
                                           const SharedArray<std::string>& preferredLanguages) {
  const auto open = [&](std::string_view code) -> const PlatformBundle* {
    const auto* const path = bundle.pathForResource(code, "lproj");
    if (!path) languageDirectoryHasVanished();
    return PlatformBundle::initWithPath(*path);
  };
  for (const std::string& identifier : preferredLanguages) {
    const std::string_view code = languageDirectoryName(identifier);
    if (!bundle.pathForResource(code, "lproj") || !open(code)) continue;
    const PlatformBundle* const winner = open(code);
    if (!winner) languageDirectoryHasVanished();
    return *winner;
  }
  const auto* const base = bundle.pathForResource("Base", "lproj");
  const PlatformBundle* const english = base ? PlatformBundle::initWithPath(*base) : nullptr;
  if (!english) baseLprojIsMissingAmongTheResources();
  return *english;
}

}  // namespace zk
