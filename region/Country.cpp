#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/region/Country.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zk {

std::optional<Country> Country::fromDictionary(const Dictionary& dictionary) {
  const auto* const name = dictionary.find<std::string>("name");
  const auto* const phoneCode = dictionary.find<std::int64_t>("phoneCode");
  const auto* const ISO = dictionary.find<std::string>("iso");
  if (!name || !phoneCode || !ISO) return std::nullopt;
  return std::make_optional<Country>(Key(), *name, *phoneCode, *ISO);
}

std::string Country::emoji() const {
  constexpr char32_t kRegionalIndicatorA = 0x1F1E6;
  const std::string capitals = upperCased(ISO_);
  std::string flag;
  for (std::string_view rest = capitals; !rest.empty();) {
    const CodePoint letter = firstCodePoint(rest);
    rest.remove_prefix(letter.bytes.size());
    if (letter.value) {
      appendCodePoint(flag, *letter.value - U'A' + kRegionalIndicatorA);
    } else {
      flag += letter.bytes;
    }
  }
  return flag;
}

std::string Country::titleFormatted() const {
  return emoji() + " " + name_;
}

std::string Country::codeFormatted() const {
  return std::string("+").append(std::to_string(phoneCode_));
}

std::string Country::displayName() const {
  return titleFormatted() + " " + codeFormatted();
}

}  // namespace zk
