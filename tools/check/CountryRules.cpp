#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/region/Country.h>
#include <ZKStrings/tools/check/CountryRules.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>
#include <ZKStrings/tools/texts/TextFeatures.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

/// Calls `visit` with each element that is an object, and its place.
template <class Visit>
void forEachCountry(const CountryFile& file, const Visit& visit) {
  for (const CountryFile::Element& element : file.elements) {
    if (const auto* const country = element.value.as<Dictionary>()) visit(*country, element.at);
  }
}

void findNoList(const CountryFile& file, Findings& findings) {
  if (file.error) findings.add(file.error->at, file.error->message);
  for (const auto& [at, value] : file.elements) {
    if (value.as<Dictionary>()) continue;
    findings.add(
        at,
        "the element is not an object, so the module offers no country at all; write {\"name\": \"...\", "
        "\"phoneCode\": 0, \"iso\": \"...\"}");
  }
}

void findDropped(const CountryFile& file, Findings& findings) {
  forEachCountry(file, [&](const Dictionary& country, Position at) {
    if (Country::fromDictionary(country)) return;
    std::vector<std::string_view> wrong;
    if (!country.find<std::string>("name")) wrong.push_back("\"name\" (a text)");
    if (!country.find<std::int64_t>("phoneCode"))
      wrong.push_back("\"phoneCode\" (an integer without quotes)");
    if (!country.find<std::string>("iso")) wrong.push_back("\"iso\" (a text)");
    findings.add(at, fmt::format("the module drops this country because {} is missing; add it",
                                 fmt::join(wrong, ", ")));
  });
}

void findDuplicates(const CountryFile& file, Findings& findings) {
  std::map<std::string_view, std::size_t> lines;
  forEachCountry(file, [&](const Dictionary& country, Position at) {
    const auto* const code = country.find<std::string>("iso");
    if (!code) return;
    const auto [first, isNew] = lines.try_emplace(*code, at.line);
    if (isNew) return;
    findings.add(at, fmt::format("the code \"{}\" is already in line {}; remove one of the two",
                                 escaped(*code), first->second));
  });
}

void findCodes(const CountryFile& file, Findings& findings) {
  const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
  forEachCountry(file, [&](const Dictionary& country, Position at) {
    const auto* const code = country.find<std::string>("iso");
    if (!code || (code->size() == 2 && std::all_of(code->begin(), code->end(), isCapital))) return;
    findings.add(
        at, fmt::format("the code \"{}\" is not two capital letters; write the country's ISO 3166-1 code",
                        escaped(*code)));
  });
}

void findNames(const CountryFile& file, Findings& findings) {
  forEachCountry(file, [&](const Dictionary& country, Position at) {
    const auto* const name = country.find<std::string>("name");
    if (name && isBlank(*name))
      findings.add(at, "the country has an empty name; write the name users choose it by");
  });
}

void findPhoneCodes(const CountryFile& file, Findings& findings) {
  forEachCountry(file, [&](const Dictionary& country, Position at) {
    const auto* const code = country.find<std::int64_t>("phoneCode");
    if (!code || *code > 0) return;
    findings.add(
        at, fmt::format("the phone code {} is not a calling code; write it as dialled, without a plus sign",
                        *code));
  });
}

constexpr RuleFor<CountryFile> kRules[] = {
    {{"country-list", Severity::error, "a country list that is not an array of objects, or is empty"},
     findNoList},
    {{"dropped-country", Severity::error, "a country that the module leaves out"}, findDropped},
    {{"duplicate-country", Severity::error, "two countries with the same ISO code"}, findDuplicates},
    {{"country-code", Severity::error, "an ISO code that is not two capital letters"}, findCodes},
    {{"country-name", Severity::warning, "a country with an empty name"}, findNames},
    {{"phone-code", Severity::warning, "a phone code below 1"}, findPhoneCodes},
};

}  // namespace

bool CountryFile::isExpected(const std::string& root, bool isModule) {
  std::error_code failure;
  return isModule || std::filesystem::exists(std::filesystem::path(root) / kFile, failure);
}

CountryFile CountryFile::read(const std::string& root) {
  CountryFile file;
  try {
    const std::string bytes = readFile(root, kFile);
    const std::optional<std::string> text = decodedText(bytes, UnmarkedText::mayBeUtf16Or32);
    if (!text) fail(kFile, "the file is not text; save it as UTF-8");
    const std::vector<JsonValue> elements = JsonValue::parse(*text, kFile).elements();
    const std::optional<Value> content = parseJson(bytes);
    const auto* const list = content ? content->as<Value::List>() : nullptr;
    if (!list || list->size() != elements.size()) fail(kFile, "it cannot read the file; save it as UTF-8");
    if (list->empty()) fail(kFile, "the list is empty; add the countries");
    for (std::size_t i = 0; i < list->size(); ++i) file.elements.push_back({elements[i].at(), (*list)[i]});
  } catch (const CommandFailed& failed) {
    const Diagnostic& error = failed.diagnostics.front();
    file.error = Finding{{error.line, error.column}, "the module offers no country: " + error.message};
  }
  return file;
}

std::span<const RuleFor<CountryFile>> countryRules() {
  return kRules;
}

}  // namespace zk::tools
