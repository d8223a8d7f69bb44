#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/region/Language.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

std::vector<std::string> listOf(const Language& language) {
  return {language.preferredLanguages.begin(), language.preferredLanguages.end()};
}

TEST(Language, TakesASnapshotOfTheLanguagesButNotOfTheLocale) {
  setenv("LC_ALL", "de_AT.UTF-8", 1);
  const Language before;
  setenv("LC_ALL", "fr_FR.UTF-8", 1);
  const Language after;
  EXPECT_EQ(before.preferredLanguages[0], "de-AT");
  EXPECT_EQ(before.locale.identifier(), "fr-FR");
  EXPECT_EQ(after.preferredLanguages[0], "fr-FR");
  EXPECT_EQ(before.countries.size(), after.countries.size());
  EXPECT_FALSE(before.countries.empty());
}

TEST(Language, CopiesAreIndependent) {
  Language original;
  original.preferredLanguages = {"a"};
  Language copy = original;
  copy.preferredLanguages.append("b");
  copy.countries = {};
  original.preferredLanguages.edit([](auto& list) { list.insert(list.begin(), "0"); });
  EXPECT_EQ(listOf(original), (std::vector<std::string>{"0", "a"}));
  EXPECT_EQ(listOf(copy), (std::vector<std::string>{"a", "b"}));
  EXPECT_FALSE(original.countries.empty());
  EXPECT_TRUE(copy.countries.empty());
}

TEST(Language, DerivesCountryAndCodeFromTheFirstIdentifier) {
  using Text = std::optional<std::string>;
  struct Case {
    std::vector<std::string> preferred;
    Text country, code;
  };
  const Case cases[] = {
      {{"en-US", "fr-FR"}, "US", "en"},
      {{"zh-Hans-CN"}, "CN", "zh-Hans"},
      {{"zh-Hans"}, "Hans", "zh"},
      {{"en"}, "en", Text()},
      {{"sr-Latn-RS-x"}, "x", Text()},
      {{"es-419"}, "419", "es"},
      {{"en_US"}, "en_US", Text()},
      {{"-US-"}, "US", Text()},
      {{"en--US"}, "US", "en"},
      {{}, Text(), Text()},
      {{"", "en-US"}, Text(), Text()},
      {{"--"}, Text(), Text()},
      {{"a-\u0301b-c"}, "c", "a-\u0301b"},
  };
  Language language;
  for (const Case& item : cases) {
    language.preferredLanguages = item.preferred;
    const std::string shown = item.preferred.empty() ? "none" : item.preferred[0];
    EXPECT_EQ(language.preferredLanguageCountry(), item.country) << shown;
    EXPECT_EQ(language.preferredLanguageCode(), item.code) << shown;
    EXPECT_EQ(language.country(), item.country) << shown;
  }
}

struct FixedReachability : NetworkReaching {
  explicit FixedReachability(std::optional<std::string> known) : code(std::move(known)) {}
  std::optional<std::string> networkCountryCode() const override { return code; }
  std::optional<std::string> code;
};

TEST(Language, CountryAsksTheNetworkFirst) {
  Language language;
  language.preferredLanguages = {"en-US"};
  const std::pair<std::optional<std::string>, const char*> cases[] = {
      {"FR", "FR"}, {std::nullopt, "US"}, {"", ""}, {"fr", "fr"}};
  for (const auto& [known, country] : cases) {
    Current::reachability = std::make_shared<FixedReachability>(known);
    EXPECT_EQ(language.country(), country);
  }
  Current::reachability = nullptr;
  EXPECT_EQ(language.country(), "US");
}

TEST(CurrentLanguage, IsWhatWasAssignedLast) {
  Language language;
  for (const char* identifier : {"a", "b"}) {
    language.preferredLanguages = {identifier};
    Current::language = language;
    Language now = Current::language;
    EXPECT_EQ(now.preferredLanguages[0], identifier);
    now.preferredLanguages = {"not assigned"};
    EXPECT_EQ(Language(Current::language).preferredLanguages[0], identifier);
  }
  EXPECT_EQ(Resolver::resolve<Language>().preferredLanguages[0], "b");
  language.preferredLanguages = {"c"};
  Resolver::register_<Language>([language] { return language; });
  EXPECT_EQ(Current::language->preferredLanguages[0], "c");
}

TEST(CurrentLanguage, AChangeInPlaceIsWrittenBackAlsoWhenAnExceptionEndsIt) {
  Current::language = Language{};
  Current::language->preferredLanguages = {"de-DE"};
  EXPECT_EQ(Language(Current::language).preferredLanguages[0], "de-DE");
  const auto changeAndThrow = [](SharedArray<std::string>& list) {
    list = {"fr-FR"};
    throw std::runtime_error("after the change");
  };
  EXPECT_THROW(changeAndThrow(Current::language->preferredLanguages), std::runtime_error);
  EXPECT_EQ(Language(Current::language).preferredLanguages[0], "fr-FR");
}

TEST(CurrentLanguageDeathTest, MustBeAssignedFirst) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(Language(Current::language)), "assign Current::language");
}

}  // namespace
}  // namespace zk
