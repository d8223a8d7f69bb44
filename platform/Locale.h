#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>

#include <functional>
#include <string>
#include <vector>

namespace zk {

/// The user's locale settings, as the host system reports them. Identifiers are hyphenated: a language code, then the
/// script and region if they are known, such as "de-DE" or "sr-Latn-RS".
struct LocaleSettings {
  std::string identifier;                       ///< of the current locale
  std::vector<std::string> preferredLanguages;  ///< most preferred first
};

/// The user's current locale. The value stores nothing: it reads the settings on every query.
///
/// Both the locale and the preferred languages come from the environment. On Windows, they come from the user's settings
/// if LC_ALL, LC_MESSAGES and LANG are unset or empty.
///
/// - The locale is the first of LC_ALL, LC_MESSAGES and LANG that is set and not empty. If none is set, or if its value
///   is C or POSIX or does not name a language, the locale is "en", and LANGUAGE is ignored.
/// - The preferred languages are those in LANGUAGE, a colon-separated list, and then the locale, without
///   duplicates. C and POSIX in LANGUAGE mean "en".
///
/// Thread-safe, except that a program must not change its environment (`setenv`) during a query on another thread. An
/// app whose settings change at run time uses `readSettingsFrom`.
class ZK_EXPORT Locale {
 public:
  /// Returns the user's locale, which follows later changes to the settings.
  [[nodiscard]] static Locale autoupdatingCurrent() { return {}; }

  /// Returns the user's preferred languages as they are now, most preferred first.
  [[nodiscard]] static SharedArray<std::string> preferredLanguages();

  /// Makes `settings` the source of the locale and the preferred languages, for a host with its own settings (a phone, a
  /// desktop). The function is called on every query, on the querying thread, and its result is used unchanged. An
  /// empty function restores the environment as the source.
  ///
  ///     zk::Locale::readSettingsFrom([] { return zk::LocaleSettings{"fr-CA", {"fr-CA", "en-CA"}}; });
  static void readSettingsFrom(std::function<LocaleSettings()> settings);

  /// Returns the identifier of the current locale, for example "de-DE".
  [[nodiscard]] std::string identifier() const;
};

}  // namespace zk
