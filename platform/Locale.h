#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/SharedArray.h>

#include <functional>
#include <string>
#include <vector>

namespace zk {

/// The user's locale settings, as the host system gives them. Identifiers are in hyphenated form: a language
/// code, then script and region where they are known, such as "de-DE" or "sr-Latn-RS".
struct LocaleSettings {
  std::string identifier;                       ///< of the current locale
  std::vector<std::string> preferredLanguages;  ///< most preferred first
};

/// The user's current locale. The value holds nothing: it answers with the settings as they are when it is
/// asked.
///
/// On a POSIX system both the locale and the preferred languages come from the environment: the locale from
/// the first of LC_ALL, LC_MESSAGES and LANG that is set and not empty ("en" when none is, or when it is C,
/// POSIX or names no language); the languages from LANGUAGE, a list separated by colons, and then the locale,
/// without repetitions. LANGUAGE is ignored when the locale is C, POSIX or names no language; C and POSIX in
/// it stand for "en". `setlocale` is neither called nor asked.
///
/// Any thread may call anything. As the environment is read at each call, a program that changes it
/// (`setenv`) must not do so while another thread asks; an app that changes its settings while it runs uses
/// `readSettingsFrom`.
class ZK_EXPORT Locale {
 public:
  /// The user's locale, which follows later changes of the settings.
  [[nodiscard]] static Locale autoupdatingCurrent() { return {}; }

  /// The user's preferred languages as they are now, most preferred first.
  [[nodiscard]] static SharedArray<std::string> preferredLanguages();

  /// Makes `settings` the source of the locale and the preferred languages, for a host that has settings of
  /// its own (a phone, a desktop). It is called at each question, by whichever thread asks, and its answer is
  /// taken as it is. An empty function brings back the environment.
  ///
  ///     zk::Locale::readSettingsFrom([] { return zk::LocaleSettings{"fr-CA", {"fr-CA", "en-CA"}}; });
  static void readSettingsFrom(std::function<LocaleSettings()> settings);

  /// The identifier of the current locale, for example "de-DE".
  [[nodiscard]] std::string identifier() const;
};

}  // namespace zk
