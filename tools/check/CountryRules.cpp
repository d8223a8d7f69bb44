#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/region/Country.h>
#include <ZKStrings/tools/check/Rules.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

void findNoList(const CountryFile& file, Findings& findings) {
  if (file.error) findings.add(file.error->at, "{}", file.error->message);
  for (const auto& [at, value] : file.elements) {
    if (value.as<Dictionary>()) continue;
    findings.add(at,
                 "the element is not an object, so the module offers no countries; write {{\"name\": "
                 "\"...\", \"phoneCode\": 0, \"iso\": \"...\"}}");
  }
}

void findDuplicates(const CountryFile& file, Findings& findings) {
  std::map<std::string_view, std::size_t> lines;
  for (const auto& [at, value] : file.elements) {
    const auto* const country = value.as<Dictionary>();
    const auto* const code = country ? country->find<std::string>("iso") : nullptr;
    if (!code) continue;
    const auto [first, isNew] = lines.try_emplace(*code, at.line);
    if (isNew) continue;
    findings.add(at, "the code \"{}\" is already on line {}; remove one of the two", escaped(*code),
                 first->second);
  }
}

/// A rule for each element that is an object. `errorIn` returns what is wrong with it; empty if nothing is.
template <std::string (*errorIn)(const Dictionary& country)>
void inCountries(const CountryFile& file, Findings& findings) {
  for (const CountryFile::Element& element : file.elements) {
    const auto* const country = element.value.as<Dictionary>();
    const std::string error = country ? errorIn(*country) : "";
    if (!error.empty()) findings.add(element.at, "{}", error);
  }
}

std::string whyDropped(const Dictionary& country) {
  if (Country::fromDictionary(country)) return "";
  std::vector<std::string_view> wrong;
  if (!country.find<std::string>("name")) wrong.push_back("\"name\" (a text)");
  if (!country.find<std::int64_t>("phoneCode")) wrong.push_back("\"phoneCode\" (an integer without quotes)");
  if (!country.find<std::string>("iso")) wrong.push_back("\"iso\" (a text)");
  return fmt::format("the module drops this country; it needs {}", fmt::join(wrong, ", "));
}

std::string errorInCode(const Dictionary& country) {
  const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
  const auto* const code = country.find<std::string>("iso");
  if (!code || (code->size() == 2 && std::all_of(code->begin(), code->end(), isCapital))) return "";
  return fmt::format("the code \"{}\" is not two capital letters; write the country's ISO 3166-1 code",
                     escaped(*code));
}

std::string errorInName(const Dictionary& country) {
  const auto* const name = country.find<std::string>("name");
  return name && isBlank(*name) ? "the country has an empty name; write the name that users see" : "";
}

std::string errorInPhoneCode(const Dictionary& country) {
  const auto* const code = country.find<std::int64_t>("phoneCode");
  if (!code || *code > 0) return "";
  return fmt::format("the phone code {} is not a calling code; write it as dialled, without a plus sign",
                     *code);
}

constexpr RuleFor<CountryFile> kRules[] = {
    {{"country-list", Severity::error, "a country list that is not an array of objects, or is empty"},
     findNoList},
    {{"dropped-country", Severity::error, "a country that the module drops"}, inCountries<whyDropped>},
    {{"duplicate-country", Severity::error, "two countries with the same ISO code"}, findDuplicates},
    {{"country-code", Severity::error, "an ISO code that is not two capital letters"},
     inCountries<errorInCode>},
    {{"country-name", Severity::warning, "a country with an empty name"}, inCountries<errorInName>},
    {{"phone-code", Severity::warning, "a phone code below 1"}, inCountries<errorInPhoneCode>},
};

}  // namespace

bool CountryFile::isExpected(const std::string& root, bool isModule) {
  return isModule || pathExists(pathBelow(root, kFile));
}

CountryFile CountryFile::read(const std::string& root) {
  CountryFile file;
  try {
    const std::string bytes = readFile(root, kFile);
    const std::optional<std::string> text = decodedText(bytes);
    if (!text) fail(kFile, "the file is not text; save it as UTF-8");
    const std::vector<JsonValue> elements = JsonValue::parse(*text, kFile).elements();
    const std::optional<Value> content = parseJson(bytes);
    const auto* const list = content ? content->as<Value::List>() : nullptr;
    if (!list || list->size() != elements.size())
      fail(kFile, "the module cannot read the file; save it as UTF-8");
    if (list->empty()) fail(kFile, "the list is empty; add the countries");
    for (std::size_t i = 0; i < list->size(); ++i) file.elements.push_back({elements[i].at(), (*list)[i]});
  } catch (const CommandFailed& failed) {
    const Diagnostic& error = failed.diagnostics.front();
    file.error = Finding{{error.line, error.column}, "the module offers no countries: " + error.message};
  }
  return file;
}

std::span<const RuleFor<CountryFile>> countryRules() {
  return kRules;
}

}  // namespace zk::tools
