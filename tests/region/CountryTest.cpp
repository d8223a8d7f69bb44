#include <ZKStrings/platform/Dictionary.h>
#include <ZKStrings/region/Country.h>
#include <ZKStrings/region/CountryList.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace zk {
namespace {

Country country(std::int64_t phoneCode, const std::string& ISO) {
  return *Country::fromDictionary({{"name", "Name"}, {"phoneCode", phoneCode}, {"iso", ISO}});
}

TEST(Country, DerivesItsTexts) {
  EXPECT_EQ(country(44, "GB").titleFormatted(), "🇬🇧 Name");
  EXPECT_EQ(country(44, "GB").displayName(), "🇬🇧 Name +44");
  EXPECT_EQ(country(0, "GB").codeFormatted(), "+0");
  EXPECT_EQ(country(-7, "GB").codeFormatted(), "+-7");
  EXPECT_EQ(country(INT64_MIN, "").displayName(), " Name +-9223372036854775808");
  const std::pair<std::string, std::string> flags[] = {
      {"", ""}, {"gb", "🇬🇧"}, {"GBR", "🇬🇧🇷"}, {"é", "\U0001F26E"}, {"ß", "🇸🇸"}, {"a\xFF", "🇦\xFF"}};
  for (const auto& [ISO, flag] : flags) EXPECT_EQ(country(1, ISO).emoji(), flag) << ISO;
  EXPECT_EQ(country(1, "1-").emoji(), "\U0001F1D6\U0001F1D2");
  EXPECT_EQ(country(1, "\U000F0E5A\U000F0E5Ba").emoji(), "\U0010FFFF🇦");
  EXPECT_EQ(country(1, "gb").ISO(), "gb");
}

TEST(Country, IsUnchangedWhenItIsMovedFrom) {
  Country original = country(44, "GB");
  const Country other = std::move(original);
  EXPECT_EQ(original.displayName(), other.displayName());
}

TEST(Country, ComesOnlyFromACompleteDictionary) {
  const Dictionary complete = {{"x", nullptr}, {"name", ""}, {"phoneCode", 44}, {"iso", "GB"}};
  EXPECT_TRUE(Country::fromDictionary(complete));
  EXPECT_FALSE(Country::fromDictionary({{"Name", "N"}, {"phoneCode", 44}, {"iso", "GB"}}));
  EXPECT_FALSE(Country::fromDictionary({{"name", "N"}, {"phonecode", 44}, {"iso", "GB"}}));
  EXPECT_FALSE(Country::fromDictionary({{"name", "N"}, {"phoneCode", 44}, {"ISO", "GB"}}));
  for (const std::string name : {"name", "phoneCode", "iso"}) {
    const Value otherType = name == "phoneCode" ? Value("44") : Value(5);
    for (const Value& wrong : {Value(nullptr), Value(true), Value(44.5), otherType}) {
      Dictionary changed = complete;
      changed.append(name, wrong);
      EXPECT_FALSE(Country::fromDictionary(changed)) << name;
    }
  }
}

/// The names of the countries that a file lists.
std::string namesIn(const std::string& file) {
  const testing::TemporaryDirectory directory;
  directory.write("countries.json", file);
  std::string names;
  for (const Country& item : countriesIn(*Bundle::initWithPath(directory.path()))) names += item.name();
  return names;
}

TEST(CountryList, ReadsTheFile) {
  // A JSON value, or a text if it is not JSON or if JSON libraries refuse it.
  for (const auto& [content, names] : testing::rowsOf<nlohmann::json, std::string>("region/CountryTest.json"))
    EXPECT_EQ(namesIn(content.is_string() ? content.get<std::string>() : content.dump()), names) << content;
  EXPECT_EQ(namesIn("[{\"name\": \"\xFF\", \"phoneCode\": 1, \"iso\": \"AA\"}]"), "");
}

TEST(CountryList, HasEverythingThatAPickerNeeds) {
  std::map<std::string, std::string> shown;
  const SharedArray<Country> countries = loadCountries();
  for (const Country& item : countries) {
    EXPECT_TRUE(shown.emplace(item.ISO(), item.displayName()).second) << item.name();
    EXPECT_TRUE(item.ISO().size() == 2 && item.phoneCode() > 0 && item.phoneCode() < 1000) << item.name();
  }
  EXPECT_GE(countries.size(), 240u);
  EXPECT_EQ(countries[1].ISO(), "AX");
  EXPECT_EQ(shown["XK"] + ", " + shown["CA"] + ", " + shown["KZ"],
            "🇽🇰 Kosovo +383, 🇨🇦 Canada +1, 🇰🇿 Kazakhstan +7");
}

}  // namespace
}  // namespace zk
