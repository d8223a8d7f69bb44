#include <ZKStrings/catalogue/ZKStrings.h>
#include <ZKStrings/engine/Languages.h>
#include <ZKStrings/engine/LookupRules.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/Rows.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

using testing::TemporaryDirectory;

TEST(Lookup, OtherCataloguesFollowTheSameLanguage) {
  const TemporaryDirectory directory;
  directory.write("Base.lproj/Localizable.strings", "\"Hi_one\" = \"%{n} hi\";");
  directory.write("de.lproj/Localizable.strings", "\"Hi_few\" = \"%{n} Hallos\";");
  const Bundle* const own = Bundle::initWithPath(directory.path());
  Current::language = Language{};
  Current::language->preferredLanguages = {"de-DE"};
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 4, {{"n", "4"}}), "4 Hallos");
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 his");
  EXPECT_EQ(localizedString("About", "", std::nullopt, {}), "Über uns");
  Current::language->preferredLanguages = {"en"};
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 hi");
  EXPECT_EQ(localizedString(nullptr, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 his");
}

/// The codes of the languages, each with its direction.
std::string shown(const std::vector<TextLanguage>& languages) {
  std::string all;
  for (const auto& [code, direction] : languages)
    all += code + (direction == TextDirection::rtl ? ":rtl " : " ");
  return all;
}

TEST(Languages, AreThoseThatALookupCanChoose) {
  Current::language = Language{};
  const TemporaryDirectory directory;
  for (const char* name : {"Base", "de", "ar", "ckb", "zh-Hans", "en", "x", "日本", "e\u0301"})
    directory.write(std::string(name) + ".lproj/Localizable.strings",
                    "\"a\" = \"" + std::string(name) + "\";");
  directory.write("fr.lproj", "not a directory");
  directory.write("it.strings", "");
  const Bundle* const own = Bundle::initWithPath(directory.path());
  const std::vector<TextLanguage> available = availableLanguages(own);
  EXPECT_EQ(shown(available), "ar:rtl de en e\u0301 x 日本 ");
  for (const char* identifier :
       {"ar-EG", "ckb-IQ", "de", "en-GB", "en", "e\u0301", "fr-FR", "x", "zh-Hans-CN", "日本語", "", "it"}) {
    Current::language->preferredLanguages = {identifier};
    const TextLanguage chosen = chosenLanguage(own);
    const std::string text = localizedString(own, "a", "", std::nullopt, {});
    EXPECT_EQ(text, chosen.code == "en" ? "Base" : chosen.code) << identifier;
    EXPECT_NE(shown(available).find(shown({chosen})), std::string::npos) << identifier;
  }
  for (const TextLanguage& language : available) {
    Current::language->preferredLanguages = {language.code};
    EXPECT_EQ(shown({chosenLanguage(own)}), shown({language}));
  }
}

TEST(Languages, OfTheModule) {
  Current::language = Language{};
  EXPECT_GE(availableLanguages().size(), 21u);
  Current::language->preferredLanguages = {"xx", "ar-EG", "de"};
  EXPECT_EQ(shown({chosenLanguage()}), "ar:rtl ");
  Current::language->preferredLanguages = {"xx"};
  EXPECT_EQ(shown({chosenLanguage()}), "en ");
  EXPECT_EQ(shown({chosenLanguage(nullptr)}), "en ");
  EXPECT_TRUE(availableLanguages(nullptr).empty());
}

/// A fake bundle that records the calls, and whose results can change between calls.
struct FakeBundle {
  using Path = std::string;
  const Path* pathForResource(std::string_view name, std::string_view type) const {
    asked += std::string(name) + "." + std::string(type) + " ";
    const auto found = directories.find(std::string(name));
    return found != directories.end() && paths-- > 0 ? &*found : nullptr;
  }
  static const FakeBundle* initWithPath(const Path& path) {
    static const FakeBundle opened;
    asked += "open:" + path + " ";
    return path != "it" && openings-- > 0 ? &opened : nullptr;
  }
  static inline const std::set<std::string> directories = {"Base", "fr", "pt", "fi", "zh", "it"};
  static inline std::string asked;
  static inline int paths, openings;  // how many are given
};

TEST(Lookup, MakesExactlyThePlatformCallsThatItMust) {
  using Identifiers = std::vector<std::string>;
  FakeBundle::paths = FakeBundle::openings = 1000;
  for (const auto& [preferred, asked] :
       testing::rowsOf<Identifiers, std::string>("engine/LanguageChoiceTest.json")) {
    FakeBundle::asked.clear();
    static_cast<void>(chosenLanguageBundle(FakeBundle(), preferred));
    EXPECT_EQ(FakeBundle::asked, asked) << (preferred.empty() ? "none" : preferred[0]);
  }
}

TEST(LookupDeathTest, StopsIfADirectoryVanishesOrBaseIsMissing) {
  const std::pair<int, int> availabilities[] = {{0, 9}, {1, 9}, {2, 9}, {9, 0}, {9, 1}};
  for (const auto& [paths, openings] : availabilities) {
    FakeBundle::paths = paths;
    FakeBundle::openings = openings;
    EXPECT_DEATH(static_cast<void>(chosenLanguageBundle(FakeBundle(), {"fr"})), "^$")
        << paths << " " << openings;
  }
}

TEST(LookupDeathTest, NeedsACurrentLanguage) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(localizedString("a", "b", std::nullopt, {})),
               "zk::Language is not registered");
  EXPECT_DEATH(static_cast<void>(Current::language.get()), "assign Current::language");
}

TEST(Lookup, FindsTheTextOfTheChosenTableOrTheEnglishDefault) {
  Current::language = Language{};
  using Pairs = std::vector<std::pair<std::string, std::string>>;
  for (const auto& [preferred, key, defaultValue, count, pairs, text] :
       testing::rowsOf<std::string, std::string, std::string, nlohmann::json, Pairs, std::string>(
           "engine/LookupTest.json")) {
    Current::language->preferredLanguages = {preferred};
    const auto number = count.is_null() ? std::nullopt : std::optional<std::int64_t>(count);
    EXPECT_EQ(localizedString(key, defaultValue, number, pairs), text) << preferred << " " << key;
  }
  const std::string longKey(1000, 'k');
  EXPECT_EQ(localizedString(longKey, "", 0, {}), longKey + "_zero");
}

TEST(Lookup, ResolvesTheLanguageOnce) {
  constexpr std::string (*kFamilies[])() = {[] { return ZKStrings::About(); },
                                            [] { return ZKStrings::Your_Extra_Lives_are_on_the_way(2); },
                                            [] { return ZKStrings::active_limit_players("1", "2"); },
                                            [] { return ZKStrings::badgeCount_Badges("4", 4); }};
  Language language;
  // The walk over many entries, and the second steps of the winner, are still one lookup.
  language.preferredLanguages = std::vector<std::string>(100, "xx");
  language.preferredLanguages.append("de");
  int calls = 0;
  ResolverOptions options = Resolver::register_<Language>([&] { return ++calls, language; });
  for (int family = 0; family < 4; ++family) {
    EXPECT_FALSE(kFamilies[family]().empty());
    EXPECT_EQ(calls, family + 1);
  }
  options.scope(ResolverScope::application);
  for (const auto family : kFamilies) EXPECT_FALSE(family().empty());
  EXPECT_EQ(calls, 5);
  Current::language = language;
}

}  // namespace
}  // namespace zk
