#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/fuzz/Decoding.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

/// The file countries.json, against what the JSON library reads in its usual way.

namespace zk::fuzzing {

namespace {

using nlohmann::json;

/// A country as all of its parts in one text.
using Countries = std::vector<std::string>;

Countries countriesIn(const testing::TemporaryDirectory& directory, std::string_view file) {
  directory.write("countries.json", file);
  const TimeLimit limit(file.size());
  Countries countries;
  for (const Country& country : zk::countriesIn(Bundle::withoutResources(directory.path()))) {
    require(country.displayName().ends_with(country.name() + " " + country.codeFormatted()), "its name");
    countries.push_back(country.name() + "\n" + std::to_string(country.phoneCode()) + "\n" + country.ISO());
  }
  return countries;
}

std::optional<std::string> plainly(const json& element) {
  const json name = element.value("name", json());
  const json code = element.value("phoneCode", json());
  const json iso = element.value("iso", json());
  const bool isTooLarge = code.is_number_unsigned() && code.get<std::uint64_t>() > INT64_MAX;
  if (!name.is_string() || !code.is_number_integer() || isTooLarge || !iso.is_string()) return std::nullopt;
  return name.get<std::string>() + "\n" + std::to_string(code.get<std::int64_t>()) + "\n" +
         iso.get<std::string>();
}

Countries countriesPlainly(std::string_view text) {
  const json list = json::parse(text, nullptr, false);
  if (!list.is_array()) return {};
  Countries countries;
  for (const json& element : list) {
    if (!element.is_object()) return {};
    if (const auto country = plainly(element)) countries.push_back(*country);
  }
  return countries;
}

/// Whether the library takes a number for an error because it is beyond every `double`.
bool hasHugeNumber(std::string_view text) {
  try {
    static_cast<void>(json::parse(text));
  } catch (const json::out_of_range&) {
    return true;
  } catch (const json::parse_error&) {
  }
  return false;
}

std::string inUTF16(const icu::UnicodeString& text) {
  std::string bytes = "\xFF\xFE";
  for (std::int32_t i = 0; i < text.length(); ++i) {
    bytes += static_cast<char>(text[i] & 0xFF);
    bytes += static_cast<char>(text[i] >> 8);
  }
  return bytes;
}

}  // namespace

void test(std::string_view input) {
  static const testing::TemporaryDirectory directory;
  const Countries countries = countriesIn(directory, input);
  const auto text = decodedByICU(input);
  // NULs without a mark are UTF-16 or 32 here, and the end of the text to the library.
  if (!text || text->indexOf(u'\0') >= 0 || text->startsWith(u"\uFEFF")) return;
  require(countriesIn(directory, inUTF16(*text)) == countries, "in UTF-16 it has other countries");
  if (hasHugeNumber(utf8(*text))) return;
  require(countriesPlainly(utf8(*text)) == countries, "it has other countries");
}

}  // namespace zk::fuzzing
