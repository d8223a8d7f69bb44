#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <string>
#include <string_view>

namespace zk {

/// The name of the directory for a language identifier such as "pt-BR": its first two characters, and "Base"
/// for English.
[[nodiscard]] inline std::string_view languageCode(std::string_view identifier) {
  const std::string_view code = firstTwoCharacters(identifier);
  return code.size() == 2 && code[0] == 'e' && code[1] == 'n' ? "Base" : code;
}

/// Stops the process: there is no Base.lproj among the module's resources, or there are no resources where
/// the module looks for them. The name is what a debugger shows.
[[noreturn, gnu::cold, gnu::noinline]] ZK_EXPORT void baseLprojIsMissingAmongTheResources();

/// Stops the process: the directory of a language was there, and was gone a moment later.
[[noreturn, gnu::cold, gnu::noinline]] ZK_EXPORT void languageDirectoryHasVanished();

/// The bundle of the language directory that `preferredLanguages` chooses among the resources of `bundle`:
/// that of the first entry whose directory exists and opens, or else Base.lproj. Stops the process when that
/// is missing or does not open.
///
/// `PlatformBundle` is the platform's bundle or a stand-in with the same operations. Nothing is remembered:
/// an entry's directory is looked up once to see that it is there and once to open it, and the winner's steps
/// are taken again to obtain its bundle. What was there at first must still be there then, or the process
/// stops.
template <class PlatformBundle>
const PlatformBundle& chosenLanguageBundle(const PlatformBundle& bundle,
                                           const SharedArray<std::string>& preferredLanguages) {
  const auto open = [&](std::string_view code) -> const PlatformBundle* {
    const auto* const path = bundle.pathForResource(code, "lproj");
    if (!path) languageDirectoryHasVanished();
    return PlatformBundle::initWithPath(*path);
  };
  for (const std::string& identifier : preferredLanguages) {
    const std::string_view code = languageCode(identifier);
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
