#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/faults/Operations.h>

#include <filesystem>
#include <fstream>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <system_error>

namespace zk::faults {

namespace {

namespace fs = std::filesystem;

std::string ownDirectory;

std::string textIn(const std::string& directory) {
  try {
    return localizedString(Bundle::initWithPath(directory), "a", "value", std::nullopt, {});
  } catch (const std::system_error&) {
    return "value";
  }
}

std::string textInBundle() {
  return textIn(ownDirectory);
}

std::string about() {
  return localizedString("About", "English", std::nullopt, {});
}

void assign(const char* identifier) {
  Language language;
  language.preferredLanguages = {identifier};
  Current::language = language;
}

void assignGerman() {
  assign("de-DE");
}

void useGerman() {
  assignGerman();
  static_cast<void>(about());
}

/// Changes the first language in all three ways, each of which must either succeed or throw without effect.
std::string firstLanguageAfterChanges() {
  using List = SharedArray<std::string>;
  constexpr void (*kChanges[])(const List&) = {
      [](const List& list) { Current::language->preferredLanguages = list; },
      [](const List& list) {
        Current::language.change([&](Language& language) { language.preferredLanguages = list; });
      },
      [](const List& list) {
        Language language;
        language.preferredLanguages = list;
        Current::language = language;
      },
  };
  for (const auto change : kChanges) {
    const List before = Current::language.get().preferredLanguages;
    const List french = {"fr-FR"};
    try {
      change(french);
    } catch (const std::bad_alloc&) {
      if (!Current::language.get().preferredLanguages.sharesElementsWith(before))
        return "an effect of what threw";
      throw;
    }
    if (!Current::language.get().preferredLanguages.sharesElementsWith(french)) return "no effect";
  }
  return Current::language.get().preferredLanguages[0];
}

const Operation kAll[] = {
    {.name = "the first text of all",
     .act = [] { return assignGerman(), about(); },
     .right = "Über uns",
     .quiet = "English",
     .refused = "About"},
    {.name = "the first text in a known directory",
     .prepare = [] { assignGerman(), static_cast<void>(bundle()); },
     .act = about,
     .right = "Über uns",
     .quiet = "English",
     .refused = "About"},
    {.name = "the first text in another language",
     .prepare = [] { useGerman(), assign("fr"); },
     .act = about,
     .right = "À propos",
     .quiet = "English",
     .refused = "About"},
    {.name = "a later text by an accessor",
     .use = Use::later,
     .prepare = assignGerman,
     .act = [] { return ZKStrings::Are_you_sure_you_want_to_kick_username("a player with a long name"); },
     .right = "Möchtest du a player with a long name wirklich rauswerfen?"},
    {.name = "the first language",
     .act = [] { return std::to_string(Language().countries.size()); },
     .right = "246",
     .quiet = "0",
     .refused = "0"},
    {.name = "a later language",
     .use = Use::later,
     .prepare = assignGerman,
     .act = [] { return std::to_string(Language().countries.size()); },
     .right = "246",
     .quiet = "0",
     .refused = "0"},
    {.name = "the app's directory",
     .act = [] { return mainBundle().path().empty() ? "nowhere" : std::string("somewhere"); },
     .right = "somewhere",
     .quiet = "nowhere",
     .refused = "nowhere"},
    {.name = "a bundle",
     .prepare = assignGerman,
     .act = textInBundle,
     .right = "text",
     .quiet = "value",
     .refused = "base"},
    {.name = "a language that has gone",
     .prepare =
         [] {
           assignGerman();
           const std::string german = ownDirectory + "/gone/de.lproj";
           fs::create_directory(german);
           static_cast<void>(Bundle::initWithPath(ownDirectory + "/gone"));
           fs::remove(german);
         },
     .act = [] { return textIn(ownDirectory + "/gone"); },
     .right = "base",
     .quiet = "value"},
    {.name = "the chosen language",
     .prepare = assignGerman,
     .act = [] { return chosenLanguage().code; },
     .right = "de",
     .quiet = "en",
     .refused = "en"},
    {.name = "the languages of a bundle",
     .prepare = [] { static_cast<void>(Bundle::initWithPath(ownDirectory)); },
     .act =
         [] {
           const bool both = availableLanguages(Bundle::initWithPath(ownDirectory)).size() == 2;
           return std::string(both ? "both" : "fewer");
         },
     .right = "both",
     .refused = "fewer"},
    {.name = "a change of the language",
     .use = Use::later,
     .prepare = assignGerman,
     .act = firstLanguageAfterChanges,
     .right = "fr-FR"},
    {.name = "an identifier of joined emoji",
     .use = Use::firstOfICU,
     .prepare = [] { useGerman(), assign("👨‍👩‍👧🇩🇪x"); },
     .act = about,
     .right = "About",
     .quiet = "English"},
    {.name = "an identifier with an accent",
     .use = Use::firstOfICU,
     .prepare = [] { useGerman(), assign("de\u0301x"); },
     .act = about,
     .right = "About",
     .quiet = "English"},
    {.name = "names with accents",
     .use = Use::firstOfICU,
     .prepare = useGerman,
     .act =
         [] {
           return localizedString("none", "%{cafe\u0301\u0316} und %{é}", std::nullopt,
                                  {{"caf\u00E9\u0316", "kim"}, {"e\u0301", "a text that is not so short"}});
         },
     .right = "kim und a text that is not so short"},
    {.name = "what follows a placeholder",
     .use = Use::firstOfICU,
     .prepare = useGerman,
     .act =
         [] {
           return localizedString("none", "%{a}\u0301 %{a}é", std::nullopt,
                                  {{"a", "a longer text than all those"}});
         },
     .right = "%{a}\u0301 a longer text than all thoseé"},
    {.name = "upper case",
     .act =
         [] {
           const auto country = Country::fromDictionary({{"name", "A"}, {"phoneCode", 1}, {"iso", "äß"}});
           return country->emoji();
         },
     .right = "\U0001F269\U0001F1F8\U0001F1F8"},
    {.name = "JSON",
     .act =
         [] {
           const auto value = parseJson(R"([1.5, "a text that is not short", {"a": [1.5]}])");
           return std::to_string(value ? value->as<Value::List>()->size() : 0);
         },
     .right = "3"},
};

void writeTable(const std::string& directory, const char* table) {
  fs::create_directories(directory);
  std::ofstream(directory + "/Localizable.strings") << table;
}

}  // namespace

std::span<const Operation> operationsIn(const std::string& directory) {
  ownDirectory = directory;
  writeTable(directory + "/real", "\"a\" = \"text\";");
  for (const char* base : {"/Base.lproj", "/gone/Base.lproj"})
    writeTable(directory + base, "\"a\" = \"base\";");
  // A link, whose kind takes another system call.
  fs::create_directory_symlink("real", directory + "/de.lproj");
  return kAll;
}

bool isAllRight() {
  assignGerman();
  return about() == "Über uns" && textInBundle() == "text";
}

}  // namespace zk::faults
