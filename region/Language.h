#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/region/Country.h>

#include <optional>
#include <string>

namespace zk {

/// The user's language and region settings. A plain value: copies are cheap and independent, and different copies may be
/// used on different threads at the same time.
///
///     zk::Language language;                                  // the settings of this machine
///     language.preferredLanguages = {"pt-BR", "en"};          // or others
///     zk::Current::language = language;                       // the app's texts follow them
struct ZK_EXPORT Language {
  /// Constructs a record of the current settings. Reads and parses the country list, so construct one `Language` and
  /// keep it. If the country list is missing or damaged, there are no countries. Throws std::bad_alloc if memory runs
  /// out.
  Language();

  /// The countries that the app offers, in the order of the country list.
  SharedArray<Country> countries;
  /// The user's locale, which follows later changes to the settings.
  Locale locale;
  /// Language identifiers such as "de-DE", most preferred first, as they were in the settings at construction.
  SharedArray<std::string> preferredLanguages;

  /// Returns the user's country code: the one that the app's reachability service reports, even if it is empty, or
  /// `preferredLanguageCountry` if the service reports none. Asks the service on every call.
  ///
  ///     zk::Current::language->country().value_or("US")   // "AT" on a phone in Austria
  [[nodiscard]] std::optional<std::string> country() const;

  /// Returns the last hyphen-separated part of the first preferred language, whatever it is: "US" for "en-US", "CN" for
  /// "zh-Hans-CN", "en" for "en". Returns nothing if there is no such part.
  [[nodiscard]] std::optional<std::string> preferredLanguageCountry() const;

  /// Returns the first preferred language without its last hyphen-separated part: "zh-Hans" for "zh-Hans-CN", "en"
  /// for "en-US". Returns nothing unless the language has two or three parts: "en" has only one.
  [[nodiscard]] std::optional<std::string> preferredLanguageCode() const;
};

}  // namespace zk
