#pragma once

#include <ZKStrings/platform/Export.h>

#include <cstdint>
#include <optional>
#include <string>

namespace zk {

class Dictionary;

/// One country that the app offers, with texts for country pickers and telephone-number fields. Different objects
/// may be used on different threads at the same time.
///
///     const zk::Dictionary austria = {{"name", "Austria"}, {"phoneCode", 43}, {"iso", "AT"}};
///     const std::optional<zk::Country> country = zk::Country::fromDictionary(austria);
///     country->displayName();  // "🇦🇹 Austria +43"
class ZK_EXPORT Country {
  // Private, so only `fromDictionary` can call the constructor that takes it.
  struct Key {
    explicit Key() = default;
  };

 public:
  /// Returns the country that `dictionary` describes with the texts "name" and "iso" and the 64-bit integer "phoneCode"
  /// (44, not 44.0). Keeps all three unchanged. Returns nothing if one is missing or of the wrong type. Ignores the rest.
  /// Requires: the caller includes <ZKStrings/platform/Dictionary.h>.
  [[nodiscard]] static std::optional<Country> fromDictionary(const Dictionary& dictionary);

  /// Copies a country. There are no move operations, because a moved-from country would have no name.
  Country(const Country&) = default;
  /// Copies a country.
  Country& operator=(const Country&) = default;

  /// Constructs a country in place. Only for `fromDictionary`.
  Country(Key, const std::string& name, std::int64_t phoneCode, const std::string& ISO)
      : name_(name), phoneCode_(phoneCode), ISO_(ISO) {}

  /// The name, as in the country list.
  [[nodiscard]] const std::string& name() const { return name_; }
  /// The international dialling code, without the plus sign: 44 for the United Kingdom.
  [[nodiscard]] std::int64_t phoneCode() const { return phoneCode_; }
  /// The ISO 3166-1 code, in upper or lower case, as in the country list.
  [[nodiscard]] const std::string& ISO() const { return ISO_; }

  /// The flag: `ISO` in upper case, with each letter from A to Z replaced with its regional indicator. Other characters
  /// are shifted by the same offset. A character is left out if the result is not a Unicode scalar value.
  [[nodiscard]] std::string emoji() const;
  /// The flag and the name, such as "🇬🇧 United Kingdom".
  [[nodiscard]] std::string titleFormatted() const;
  /// The dialling code with a plus sign, such as "+44".
  [[nodiscard]] std::string codeFormatted() const;
  /// The flag, the name and the dialling code, such as "🇬🇧 United Kingdom +44".
  [[nodiscard]] std::string displayName() const;

 private:
  std::string name_;
  std::int64_t phoneCode_;
  std::string ISO_;
};

}  // namespace zk
