#pragma once

#include <ZKStrings/platform/Export.h>

#include <cstdint>
#include <optional>
#include <string>

namespace zk {

class Dictionary;

/// One country that the app offers, with texts for country pickers and telephone-number fields. An immutable
/// value; any thread may read it.
///
///     const zk::Dictionary austria = {{"name", "Austria"}, {"phoneCode", 43}, {"iso", "AT"}};
///     const std::optional<zk::Country> country = zk::Country::fromDictionary(austria);
///     country->displayName();  // "🇦🇹 Austria +43"
class ZK_EXPORT Country {
 public:
  /// The country that `dictionary` describes by "name" (a text), "phoneCode" (an integer of 64 bits, not 44.0
  /// or a boolean) and "iso" (a text), taken as they are; other members are ignored. Nothing when one is
  /// missing or of another type. Who calls it includes <ZKStrings/platform/Dictionary.h>, which costs more to compile
  /// than most of this module.
  [[nodiscard]] static std::optional<Country> fromDictionary(const Dictionary& dictionary);

  /// The name as the country list gives it.
  [[nodiscard]] const std::string& name() const { return name_; }
  /// The international dialling code, without the plus sign: 44 for the United Kingdom.
  [[nodiscard]] std::int64_t phoneCode() const { return phoneCode_; }
  /// The ISO 3166-1 code, in the case that the country list gives it.
  [[nodiscard]] const std::string& ISO() const { return ISO_; }

  /// The flag: the letters of `ISO`, upper-cased, as regional indicators. Other characters are shifted by the
  /// same distance, and left out where that gives no character.
  [[nodiscard]] std::string emoji() const;
  /// "🇬🇧 United Kingdom"
  [[nodiscard]] std::string titleFormatted() const;
  /// "+44"
  [[nodiscard]] std::string codeFormatted() const;
  /// "🇬🇧 United Kingdom +44"
  [[nodiscard]] std::string displayName() const;

 private:
  Country(const std::string& name, std::int64_t phoneCode, const std::string& ISO);

  std::string name_;
  std::int64_t phoneCode_;
  std::string ISO_;
};

}  // namespace zk
