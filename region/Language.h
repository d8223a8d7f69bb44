#pragma once

#include <ZKStrings/platform/Export.h>
#include <ZKStrings/platform/Locale.h>
#include <ZKStrings/platform/SharedArray.h>
#include <ZKStrings/region/Country.h>

#include <optional>
#include <string>

namespace zk {

/// The user's language and region settings. A plain value: copies are cheap and independent, and separate
/// copies may be used on different threads.
///
///     zk::Language language;                                  // the settings of this machine
///     language.preferredLanguages = {"pt-BR", "en"};          // or others
///     zk::Current::language = language;                       // the texts of the app follow them
struct ZK_EXPORT Language {
  /// The settings as they are now. Reads and parses the country list: make one `Language` and keep it. Never
  /// fails; a country list that is missing or damaged gives no countries.
  Language();

  /// The countries that the app offers, in the order of the country list.
  SharedArray<Country> countries;
  /// The user's locale, which follows later changes of the settings.
  Locale locale;
  /// Language identifiers such as "de-DE", most preferred first, as the settings had them when this was made.
  SharedArray<std::string> preferredLanguages;

  /// The user's country: what the app's reachability service says, also when that is empty, or else
  /// `preferredLanguageCountry`. Asks the service at each call.
  [[nodiscard]] std::optional<std::string> country() const;

  /// The last of the parts that hyphens separate in the first preferred language, whatever it is: "US" of
  /// "en-US", "CN" of "zh-Hans-CN", "en" of "en". Nothing when there is no such part.
  [[nodiscard]] std::optional<std::string> preferredLanguageCountry() const;

  /// The first two of exactly three such parts ("zh-Hans" of "zh-Hans-CN"), or the first of exactly two ("en"
  /// of "en-US"). Nothing when there are fewer or more: "en" has no code.
  [[nodiscard]] std::optional<std::string> preferredLanguageCode() const;
};

}  // namespace zk
