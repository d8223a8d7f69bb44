#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/platform/ZKCommon.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/region/Language.h>
#include <ZKStrings/tests/Rows.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

std::string joined(const Language& language) {
  std::string all;
  for (const std::string& identifier : language.preferredLanguages)
    all += (all.empty() ? "" : " ") + identifier;
  return all;
}

Language speaking(const std::string& identifier) {
  Language language;
  language.preferredLanguages = {identifier};
  return language;
}

TEST(Language, TakesASnapshotOfTheLanguagesButNotOfTheLocale) {
  setenv("LC_ALL", "de_AT.UTF-8", 1);
  const Language before;
  setenv("LC_ALL", "fr_FR.UTF-8", 1);
  const Language after;
  EXPECT_EQ(joined(before), "de-AT");
  EXPECT_EQ(before.locale.identifier(), "fr-FR");
  EXPECT_EQ(joined(after), "fr-FR");
  EXPECT_EQ(before.countries.size(), after.countries.size());
  EXPECT_FALSE(before.countries.empty());
}

TEST(SharedArray, GrowsInPlaceOnlyWithoutAnotherCopy) {
  SharedArray<std::string> list = {"a", "b"};
  std::atomic<bool> isDropped = false;
  std::thread reader([&isDropped, copy = list]() mutable {
    EXPECT_EQ(copy[1], "b");
    copy = {};
    isDropped.store(true, std::memory_order_relaxed);  // orders nothing: `append` itself must
  });
  while (!isDropped.load(std::memory_order_relaxed)) std::this_thread::yield();
  list.append("c");
  reader.join();

  const std::string* const place = list.begin();
  list.append("d");
  EXPECT_EQ(list.begin(), place);
  const SharedArray<std::string> copy = list;
  list.append("e");
  EXPECT_EQ(list.size(), 5u);
  list = copy;
  list.edit([](auto& elements) { elements.clear(); });
  EXPECT_EQ(copy.size(), 4u);
}

TEST(Language, DerivesCountryAndCodeFromTheFirstIdentifier) {
  using Json = nlohmann::json;
  const auto shown = [](const std::optional<std::string>& text) { return text ? Json(*text) : Json(); };
  Language language;
  for (const auto& [preferred, country, code] :
       testing::rowsOf<std::vector<std::string>, Json, Json>("region/LanguageTest.json")) {
    language.preferredLanguages = preferred;
    EXPECT_EQ(shown(language.preferredLanguageCountry()), country) << joined(language);
    EXPECT_EQ(shown(language.preferredLanguageCode()), code) << joined(language);
    EXPECT_EQ(shown(language.country()), country) << joined(language);
  }
}

struct FixedReachability : NetworkReaching {
  explicit FixedReachability(std::optional<std::string> known) : code(std::move(known)) {}
  std::optional<std::string> networkCountryCode() const override { return code; }
  std::optional<std::string> code;
};

TEST(Language, CountryAsksTheNetworkFirst) {
  const std::pair<std::optional<std::string>, const char*> cases[] = {
      {"FR", "FR"}, {std::nullopt, "US"}, {"", ""}, {"fr", "fr"}};
  for (const auto& [known, country] : cases) {
    Current::reachability = std::make_shared<FixedReachability>(known);
    EXPECT_EQ(speaking("en-US").country(), country);
  }
  Current::reachability = nullptr;
  EXPECT_EQ(speaking("en-US").country(), "US");
}

TEST(CurrentLanguage, IsTheLastAssignedOne) {
  for (const char* identifier : {"a", "b"}) {
    Current::language = speaking(identifier);
    Language now = Current::language;
    EXPECT_EQ(joined(now), identifier);
    now.preferredLanguages = {"not assigned"};
    EXPECT_EQ(joined(Current::language), identifier);
  }
  EXPECT_EQ(joined(Resolver::resolve<Language>()), "b");
  Resolver::register_<Language>([] { return speaking("c"); });
  EXPECT_EQ(Current::language->preferredLanguages[0], "c");
}

TEST(CurrentLanguage, ReadingWritesNothingAndChangingAlwaysWrites) {
  int calls = 0;
  Resolver::register_<Language>([&] { return speaking(std::to_string(++calls)); });
  for (const char* number : {"1", "2"}) EXPECT_EQ(Current::language->preferredLanguages[0], number);
  Current::language.change([](const Language&) {});
  for (int i = 0; i < 2; ++i) EXPECT_EQ(joined(Current::language), "3");
  Current::language.change([](const Language&) { Current::language = speaking("lost"); });
  EXPECT_EQ(joined(Current::language), "3");
}

TEST(CurrentLanguage, CanBeReadInTheExpressionThatChangesIt) {
  Current::language = Language{};
  Current::language->preferredLanguages = {"de-DE"};
  Current::language->preferredLanguages = {Current::language->preferredLanguages[0], "en"};
  EXPECT_EQ(joined(Current::language), "de-DE en");
  Current::language->preferredLanguages.append(Current::language->preferredLanguages[0]);
  EXPECT_EQ(joined(Current::language), "de-DE en de-DE");
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
    Language expected = speaking("de-DE");
    Current::language = expected;
    changes[i](expected);
    Current::language.change(changes[i]);
    EXPECT_EQ(joined(Current::language), joined(expected)) << i;
    EXPECT_EQ(Current::language.get().countries.size(), expected.countries.size()) << i;
  }
}

TEST(CurrentLanguage, AChangeIsWrittenBackEvenIfItThrows) {
  Current::language = speaking("de-DE");
  const auto changeAndThrow = [](auto& list) {
    list = {};
    throw std::runtime_error("after the change");
  };
  EXPECT_THROW(changeAndThrow(Current::language->countries), std::runtime_error);
  const auto changeAll = [&](Language& language) { changeAndThrow(language.preferredLanguages); };
  EXPECT_THROW(Current::language.change(changeAll), std::runtime_error);
  EXPECT_TRUE(Current::language->countries.empty() && Current::language->preferredLanguages.empty());
}

}  // namespace
}  // namespace zk
