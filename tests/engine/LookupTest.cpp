#include <ZKStrings/catalogue/ZKStrings.h>
#include <ZKStrings/engine/LanguageChoice.h>
#include <ZKStrings/engine/PluralSuffix.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/platform/Resolver.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cstdint>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace zk {
namespace {

using testing::TemporaryDirectory;

TEST(Lookup, SuffixFollowsTheCount) {
  const std::pair<std::int64_t, std::string_view> cases[] = {
      {0, "_zero"},        {1, "_one"},   {2, "_two"},          {3, "_few"},
      {4, "_few"},         {5, "_few"},   {6, "_many"},         {1000, "_many"},
      {-1, "_many"},       {-5, "_many"}, {INT64_MIN, "_many"}, {INT64_MIN + 3, "_many"},
      {INT64_MAX, "_many"}};
  for (const auto& [count, suffix] : cases) EXPECT_EQ(pluralSuffix(count), suffix) << count;
}

TEST(Lookup, ACatalogueOfItsOwnFollowsTheSameLanguage) {
  const TemporaryDirectory directory;
  directory.write("Base.lproj/Localizable.strings", "\"Hi_one\" = \"%{n} hi\";");
  directory.write("de.lproj/Localizable.strings", "\"Hi_few\" = \"%{n} Hallos\";");
  const Bundle* const own = Bundle::initWithPath(directory.path());
  Language language;
  language.preferredLanguages = {"de-DE"};
  Current::language = language;
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 4, {{"n", "4"}}), "4 Hallos");
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 his");
  EXPECT_EQ(localizedString("About", "", std::nullopt, {}), "Über uns");
  Current::language->preferredLanguages = {"en"};
  EXPECT_EQ(localizedString(own, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 hi");
  EXPECT_EQ(localizedString(nullptr, "Hi", "%{n} his", 1, {{"n", "1"}}), "1 his");
}

TEST(Lookup, ResourcesOfOnesOwnHaveASingleName) {
  for (const std::string_view name : {"", ".", "..", "a/b", "../share/ZKStrings", "nothing there"}) {
    EXPECT_EQ(Bundle::bundleForClass(typeid(TemporaryDirectory), name).path(), "") << name;
  }
  EXPECT_NE(Bundle::bundleForClass(typeid(TemporaryDirectory), "ZKStrings").path(), "");
}

/// Stands in for the platform's bundle and counts what is asked of it.
class StandInBundle {
 public:
  struct Path {
    std::string name;
    const StandInBundle* opensAs;  // null: cannot be opened
  };

  void add(const std::string& name, bool opens = true) {
    paths_.emplace(name, Path{name, opens ? new StandInBundle : nullptr});
  }
  ~StandInBundle() {
    for (const auto& [name, path] : paths_) delete path.opensAs;
  }
  StandInBundle() = default;
  StandInBundle(const StandInBundle&) = delete;
  StandInBundle& operator=(const StandInBundle&) = delete;

  const Path* pathForResource(std::string_view name, std::string_view type) const {
    asked += std::string(name) + "." + std::string(type) + " ";
    const auto found = paths_.find(std::string(name));
    return found == paths_.end() ? nullptr : &found->second;
  }
  static const StandInBundle* initWithPath(const Path& path) {
    asked += "open:" + path.name + " ";
    return path.opensAs;
  }

  static inline std::string asked;

 private:
  std::map<std::string, Path> paths_;
};

TEST(Lookup, MakesExactlyThePlatformCallsThatItMust) {
  StandInBundle bundle;
  for (const char* name : {"Base", "fr", "pt", "fi", "zh"}) bundle.add(name);
  bundle.add("it", false);
  const std::string base = "Base.lproj open:Base ";
  const std::string baseWins = "Base.lproj Base.lproj open:Base Base.lproj open:Base ";
  const std::string frenchWins = "fr.lproj fr.lproj open:fr fr.lproj open:fr ";
  struct Case {
    std::vector<std::string> preferred;
    std::string asked;
  };
  const Case cases[] = {
      {{}, base},
      {{"de-DE"}, "de.lproj " + base},
      {{"en-GB", "fr-FR"}, baseWins},
      {{"en"}, baseWins},
      {{"EN-US"}, "EN.lproj " + base},
      {{"fr-FR", "pt-BR"}, frenchWins},
      {{"de-DE", "xx", "fr-CA"}, "de.lproj xx.lproj " + frenchWins},
      {{"it-IT", "fr-FR"}, "it.lproj it.lproj open:it " + frenchWins},
      {{"it-IT"}, "it.lproj it.lproj open:it " + base},
      {{"fil-PH"}, "fi.lproj fi.lproj open:fi fi.lproj open:fi "},
      {{"x"}, "x.lproj " + base},
      {{""}, ".lproj " + base},
      {{"日本語"}, "日本.lproj " + base},
  };
  for (const Case& item : cases) {
    StandInBundle::asked.clear();
    static_cast<void>(chosenLanguageBundle(bundle, SharedArray<std::string>(item.preferred)));
    EXPECT_EQ(StandInBundle::asked, item.asked) << (item.preferred.empty() ? "none" : item.preferred[0]);
  }
}

/// A bundle in which what was there once is gone the next time.
struct FickleBundle {
  struct Path {};
  const Path* pathForResource(std::string_view, std::string_view) const {
    static const Path path;
    return --paths >= 0 ? &path : nullptr;
  }
  static const FickleBundle* initWithPath(const Path&) {
    static const FickleBundle opened;
    return --openings >= 0 ? &opened : nullptr;
  }
  static inline int paths = 0;
  static inline int openings = 0;
};

TEST(LookupDeathTest, StopsWithoutBaseAndWhenThePlatformChangesItsMind) {
  const TemporaryDirectory noBase;
  noBase.write("de.lproj/Localizable.strings", "");
  noBase.write("Base.lproj", "no directory");
  const Bundle& bundle = *Bundle::initWithPath(noBase.path());
  EXPECT_DEATH(static_cast<void>(chosenLanguageBundle(bundle, {"fr"})), "^$");
  EXPECT_EQ(chosenLanguageBundle(bundle, {"de"}).path(), noBase.path() + "/de.lproj");
  const std::pair<int, int> availabilities[] = {{1, 9}, {2, 9}, {9, 1}};
  for (const auto& [paths, openings] : availabilities) {
    FickleBundle::paths = paths;
    FickleBundle::openings = openings;
    EXPECT_DEATH(static_cast<void>(chosenLanguageBundle(FickleBundle(), {"de"})), "^$")
        << paths << " " << openings;
  }
}

TEST(LookupDeathTest, NeedsACurrentLanguage) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(localizedString("a", "b", std::nullopt, {})),
               "zk::Language is not registered");
}

TEST(Lookup, FindsTheTextOfTheChosenTableOrTheEnglishDefault) {
  Current::language = Language{};
  struct Case {
    const char* preferred;
    const char* key;
    const char* defaultValue;
    std::optional<std::int64_t> count;
    Substitutions substitutions;
    const char* text;
  };
  const Substitutions four = {{"badgeCount", "4"}};
  const Case cases[] = {
      {"de-DE", "About", "?", std::nullopt, {}, "Über uns"},
      {"en-US", "About", "?", std::nullopt, {}, "About"},
      {"el-GR", "About", "?", std::nullopt, {}, "About"},
      {"de-DE", "badgeCount_Badges", "%{badgeCount} Badges", 4, four, "4 Abzeichen"},
      {"de-DE", "badgeCount_Badges", "%{badgeCount} Badges", std::nullopt, four,
       "4 Badges"},  // the bare key is in no table
      {"de-DE", "No_such_key", "Hi %{x}", 4, {{"x", "y"}}, "Hi y"},
      {"de-DE", "No_%{x}", "", std::nullopt, {{"x", "key"}}, "No_key"},
      {"de-DE", "About", "?", 1, {}, "?"},
  };
  for (const Case& item : cases) {
    Current::language->preferredLanguages = {item.preferred};
    EXPECT_EQ(localizedString(item.key, item.defaultValue, item.count, item.substitutions), item.text)
        << item.preferred << " " << item.key;
  }
  const std::string longKey(1000, 'k');
  EXPECT_EQ(localizedString(longKey, "", 0, {}), longKey + "_zero");
}

TEST(Lookup, ResolvesTheLanguageOnce) {
  const std::pair<const char*, std::string (*)()> families[] = {
      {"plain", [] { return ZKStrings::About(); }},
      {"counted", [] { return ZKStrings::Your_Extra_Lives_are_on_the_way(2); }},
      {"with placeholders", [] { return ZKStrings::active_limit_players("1", "2"); }},
      {"counted with placeholders", [] { return ZKStrings::badgeCount_Badges("4", 4); }},
  };
  Language language;
  // The walk over many entries, and the second steps of the winner, are still one lookup.
  language.preferredLanguages = std::vector<std::string>(100, "xx");
  language.preferredLanguages.append("de");
  int calls = 0;
  ResolverOptions options = Resolver::register_<Language>([&] { return ++calls, language; });
  for (const auto& [name, text] : families) {
    calls = 0;
    EXPECT_FALSE(text().empty());
    EXPECT_EQ(calls, 1) << name;
  }
  options.scope(ResolverScope::application);
  calls = 0;
  for (const auto& [name, text] : families) EXPECT_FALSE(text().empty()) << name;
  EXPECT_EQ(calls, 1);
  Current::language = language;
}

TEST(Lookup, ThreadsFollowAChangeOfTheLanguage) {
  Current::language = Language{};
  Current::language->preferredLanguages = {"en"};
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i) {
    readers.emplace_back([] {
      for (int round = 0; round < 3000; ++round) {
        const std::string text = localizedString("About", "?", std::nullopt, {});
        ASSERT_TRUE(text == "About" || text == "Über uns") << text;
      }
    });
  }
  for (int round = 0; round < 500; ++round)
    Current::language->preferredLanguages = {round % 2 == 0 ? "de" : "en"};
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(localizedString("About", "?", std::nullopt, {}), "About");
}

}  // namespace
}  // namespace zk
