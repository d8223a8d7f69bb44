#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/region/Language.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
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

TEST(CurrentLanguage, ReadingWritesNothing) {
  int calls = 0;
  Language language;
  Resolver::register_<Language>([&] {
    language.preferredLanguages = {std::to_string(++calls)};
    return language;
  });
  EXPECT_EQ(Current::language->preferredLanguages[0], "1");
  EXPECT_FALSE(Current::language->countries.empty());
  Current::language.change([](const Language& now) { EXPECT_EQ(now.preferredLanguages[0], "3"); });
  EXPECT_EQ(Current::language.get().preferredLanguages[0], "4");
}

TEST(CurrentLanguage, ReadingUndoesNoOtherThreadsAssignment) {
  Language language;
  Current::language = language;
  std::atomic<bool> done = false;
  std::vector<std::thread> readers;
  for (int i = 0; i < 2; ++i) {
    readers.emplace_back([&] {
      while (!done) EXPECT_FALSE(Current::language->countries.empty());
    });
  }
  for (int round = 0; round < 2000; ++round) {
    language.preferredLanguages = {std::to_string(round)};
    Current::language = language;
    EXPECT_TRUE(Current::language.get().preferredLanguages.sharesElementsWith(language.preferredLanguages));
  }
  done = true;
  for (std::thread& reader : readers) reader.join();
}

TEST(CurrentLanguage, MayBeReadWhereItIsChanged) {
  Current::language = Language{};
  Current::language->preferredLanguages = {"de-DE"};
  Current::language->preferredLanguages = {Current::language->preferredLanguages[0], "en"};
  EXPECT_EQ(listOf(Current::language), (std::vector<std::string>{"de-DE", "en"}));
  Current::language->preferredLanguages.append(Current::language->preferredLanguages[0]);
  EXPECT_EQ(listOf(Current::language), (std::vector<std::string>{"de-DE", "en", "de-DE"}));
}

TEST(CurrentLanguage, EveryKindOfChangeIsSeen) {
  const std::vector<void (*)(Language&)> changes = {
      [](Language& language) { language.countries = {}; },
      [](Language& language) { language.preferredLanguages = {}; },
      [](Language& language) { language.preferredLanguages.append("fr"); },
      [](Language& language) { language.preferredLanguages.edit([](auto& list) { list.clear(); }); },
      [](Language& language) { language.countries.append(language.countries[0]); },
      [](Language& language) { language = Language(); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    Language expected;
    expected.preferredLanguages = {"de-DE"};
    Current::language = expected;
    changes[i](expected);
    Current::language.change(changes[i]);
    EXPECT_EQ(listOf(Current::language), listOf(expected)) << i;
    EXPECT_EQ(Current::language.get().countries.size(), expected.countries.size()) << i;
  }
}

TEST(CurrentLanguage, ChangesOfTheWholeRecordAreOneAssignment) {
  Current::language = Language{};
  std::size_t shown = 0;
  for (const Country& country : Current::language.get().countries) shown += country.ISO().empty() ? 0U : 1U;
  EXPECT_EQ(shown, Current::language->countries.size());
  const auto changeAndThrow = [](Language& language) {
    language.preferredLanguages = {"fr-FR"};
    language.countries = {};
    throw std::runtime_error("after the change");
  };
  EXPECT_THROW(Current::language.change(changeAndThrow), std::runtime_error);
  EXPECT_EQ(Current::language->preferredLanguages[0], "fr-FR");
  EXPECT_TRUE(Current::language->countries.empty());
}

TEST(CurrentLanguageDeathTest, MustBeAssignedFirst) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(Language(Current::language)), "assign Current::language");
}

}  // namespace
}  // namespace zk
