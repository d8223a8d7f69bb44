#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/faults/Operations.h>

#include <filesystem>
#include <fstream>
#include <new>

namespace zk::faults {

namespace {

namespace fs = std::filesystem;

std::string ownDirectory;

std::string textIn(const std::string& directory) {
  return localizedString(Bundle::initWithPath(directory), "a", "value", std::nullopt, {});
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

/// What the first preferred language is after `change`, which is to be made or to throw without effect.
template <class Change>
std::string firstLanguageAfter(Change change) {
  const Language before = Current::language;
  const SharedArray<std::string> french = {"fr-FR"};
  try {
    change(french);
  } catch (const std::bad_alloc&) {
    const SharedArray<std::string> now = Current::language.get().preferredLanguages;
    if (!now.sharesElementsWith(before.preferredLanguages)) return "an effect of what threw";
    throw;
  }
  return Current::language.get().preferredLanguages[0];
}

constexpr void (*kNothing)() = [] {};

const Operation kAll[] = {
    {"the first text of all", Use::first, kNothing, [] { return assignGerman(), about(); }, "Über uns",
     "English", "About"},
    {"the first text in a known directory", Use::first, [] { assignGerman(), static_cast<void>(bundle()); },
     about, "Über uns", "English", "About"},
    {"the first text in another language", Use::first, [] { useGerman(), assign("fr"); }, about, "À propos",
     "English", "About"},
    {"a later text", Use::later, assignGerman, about, "Über uns", "", ""},
    {"a later text by an accessor", Use::later, assignGerman,
     [] { return ZKStrings::Are_you_sure_you_want_to_kick_username("a player with a long name"); },
     "Möchtest du a player with a long name wirklich rauswerfen?", "", ""},
    {"the first language", Use::first, kNothing, [] { return std::to_string(Language().countries.size()); },
     "246", "0", "0"},
    {"a later language", Use::later, assignGerman, [] { return std::to_string(Language().countries.size()); },
     "246", "0", "0"},
    {"the app's directory", Use::first, kNothing,
     [] { return mainBundle().path().empty() ? "nowhere" : std::string("somewhere"); }, "somewhere",
     "nowhere", "nowhere"},
    {"a bundle", Use::first, assignGerman, textInBundle, "text", "value", "base"},
    {"a language that has gone", Use::first,
     [] {
       assignGerman();
       const std::string german = ownDirectory + "/gone/de.lproj";
       fs::create_directory(german);
       static_cast<void>(Bundle::initWithPath(ownDirectory + "/gone"));
       fs::remove(german);
     },
     [] { return textIn(ownDirectory + "/gone"); }, "base", "value", ""},
    {"an assignment", Use::later, assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Language language;
         language.preferredLanguages = list;
         Current::language = language;
       });
     },
     "fr-FR", "", ""},
    {"a change in place", Use::later, assignGerman,
     [] {
       return firstLanguageAfter(
           [](const SharedArray<std::string>& list) { Current::language->preferredLanguages = list; });
     },
     "fr-FR", "", ""},
    {"a change by a function", Use::later, assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Current::language.change([&](Language& language) { language.preferredLanguages = list; });
       });
     },
     "fr-FR", "", ""},
    {"an identifier of joined emoji", Use::firstOfICU,
     [] { useGerman(), assign("👨‍👩‍👧🇩🇪x"); }, about, "About", "English", ""},
    {"an identifier with an accent", Use::firstOfICU, [] { useGerman(), assign("de\u0301x"); }, about,
     "About", "English", ""},
    {"names with accents", Use::firstOfICU, useGerman,
     [] {
       return localizedString("none", "%{cafe\u0301\u0316} und %{é}", std::nullopt,
                              {{"caf\u00E9\u0316", "kim"}, {"e\u0301", "a text that is not so short"}});
     },
     "kim und a text that is not so short", "", ""},
    {"what follows a placeholder", Use::firstOfICU, useGerman,
     [] {
       return localizedString("none", "%{a}\u0301 %{a}é", std::nullopt,
                              {{"a", "a longer text than all those"}});
     },
     "%{a}\u0301 a longer text than all thoseé", "", ""},
    {"upper case", Use::first, kNothing,
     [] {
       return Country::fromDictionary({{"name", "A"}, {"phoneCode", 1}, {"iso", "äß"}})->emoji();
     },
     "\U0001F269\U0001F1F8\U0001F1F8", "", ""},
    {"JSON", Use::first, kNothing,
     [] {
       const auto value = parseJson(R"([1e999, "a text that is not short", {"a": [1.5]}])");
       return std::to_string(value ? value->as<Value::List>()->size() : 0);
     },
     "3", "", ""},
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
  // A link, so that its kind takes another call.
  fs::create_directory_symlink("real", directory + "/de.lproj");
  return kAll;
}

bool isAllRight() {
  assignGerman();
  return about() == "Über uns" && textInBundle() == "text";
}

}  // namespace zk::faults
