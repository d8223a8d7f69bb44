// What the module does while the process is short of descriptors or memory: a call gives the right text, its
// documented quiet outcome or std::bad_alloc, and when the shortage is over, all is as if it had never been. Each
// is tried in a process of its own, as much happens at the first use only.

#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/faults/Failures.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zk {
namespace {

using faults::Kind;
using faults::Shortage;

constexpr Shortage kShortages[] = {
    {Kind::systemCall, EMFILE, false}, {Kind::systemCall, EMFILE, true},  {Kind::systemCall, ENFILE, false},
    {Kind::systemCall, ENOMEM, true},  {Kind::systemCall, EIO, false},    {Kind::systemCall, EINTR, false},
    {Kind::systemCall, EAGAIN, false}, {Kind::allocation, ENOMEM, false}, {Kind::allocation, ENOMEM, true},
};

std::string directoryOfBundle;

std::string textInBundle() {
  const Bundle* const bundle = Bundle::initWithPath(directoryOfBundle);
  const ResourcePath* const german = bundle ? bundle->pathForResource("de", "lproj") : nullptr;
  const Bundle* const opened = german ? Bundle::initWithPath(*german) : nullptr;
  return std::string(opened ? opened->localizedStringForKey("a", "value") : "value");
}

void assign(const char* identifier) {
  Language language;
  language.preferredLanguages = {identifier};
  Current::language = language;
}

void assignGerman() {
  assign("de-DE");
}

std::string about() {
  return localizedString("About", "English", std::nullopt, {});
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

struct Operation {
  const char* name;
  void (*prepare)();  // before the shortage
  std::string (*act)();
  const char* right;
  const char* quiet;  // what a shortage of descriptors may make of it
};

constexpr void (*kNothing)() = [] {};

const Operation kOperations[] = {
    {"the first lookup", kNothing, [] { return assignGerman(), about(); }, "Über uns", "English"},
    {"a lookup with the directory known", [] { assignGerman(), static_cast<void>(bundle()); }, about,
     "Über uns", "English"},
    {"a lookup in another language", [] { assignGerman(), static_cast<void>(about()), assign("fr"); }, about,
     "À propos", "English"},
    {"the countries", kNothing, [] { return std::to_string(Language().countries.size()); }, "246", "0"},
    {"the app's directory", kNothing,
     [] { return mainBundle().path().empty() ? "nowhere" : std::string("somewhere"); }, "somewhere",
     "nowhere"},
    {"a bundle", kNothing, textInBundle, "text", "value"},
    {"an assignment", assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Language language;
         language.preferredLanguages = list;
         Current::language = language;
       });
     },
     "fr-FR", ""},
    {"a change in place", assignGerman,
     [] {
       return firstLanguageAfter(
           [](const SharedArray<std::string>& list) { Current::language->preferredLanguages = list; });
     },
     "fr-FR", ""},
    {"a change by a function", assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Current::language.change([&](Language& language) { language.preferredLanguages = list; });
       });
     },
     "fr-FR", ""},
    {"an identifier of joined emoji", [] { assign("👨‍👩‍👧🇩🇪x"); }, about, "About",
     "English"},
    {"an identifier with an accent", [] { assign("de\u0301x"); }, about, "About", "English"},
    {"names with accents", assignGerman,
     [] {
       return localizedString("none", "%{cafe\u0301\u0316} und %{é}", std::nullopt,
                              {{"caf\u00E9\u0316", "kim"}, {"e\u0301", "a text that is not so short"}});
     },
     "kim und a text that is not so short", ""},
    {"what follows a placeholder", assignGerman,
     [] {
       return localizedString("none", "%{a}\u0301 %{a}é", std::nullopt,
                              {{"a", "a longer text than all those"}});
     },
     "%{a}\u0301 a longer text than all thoseé", ""},
    {"upper case", kNothing,
     [] {
       return Country::fromDictionary({{"name", "A"}, {"phoneCode", 1}, {"iso", "äß"}})->emoji();
     },
     "\U0001F269\U0001F1F8\U0001F1F8", ""},
    {"JSON", kNothing,
     [] {
       const auto value = parseJson(R"([1e999, "a text that is not short", {"a": [1.5]}])");
       return std::to_string(value ? value->as<Value::List>()->size() : 0);
     },
     "3", ""},
};

enum Outcome { notFailed, failed, wrong, lasted, stopped };

/// Runs `operation` in this process while the call with `before` others before it fails, and then without failure.
Outcome outcomeHere(const Operation& operation, const Shortage& shortage, int before) noexcept {
  operation.prepare();
  std::string result = "bad_alloc";
  faults::begin(shortage, before);
  try {
    result = operation.act();
  } catch (const std::bad_alloc&) {
  }
  const bool hasFailed = faults::end();
  const bool mayThrow = shortage.kind == Kind::allocation;
  const bool isQuiet = (mayThrow && result == "bad_alloc") || (*operation.quiet && result == operation.quiet);
  if (result != operation.right && !(hasFailed && isQuiet)) return wrong;
  operation.prepare();
  if (operation.act() != operation.right) return lasted;
  assignGerman();
  return about() != "Über uns" || textInBundle() != "text" ? lasted : hasFailed ? failed : notFailed;
}

Outcome outcome(const Operation& operation, const Shortage& shortage, int before) {
  const pid_t child = fork();
  if (child == 0) _exit(outcomeHere(operation, shortage, before));
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? static_cast<Outcome>(WEXITSTATUS(status)) : stopped;
}

/// Whether allocations can be made to fail here; sanitizers have an allocator of their own.
bool canAllocationsFail() {
  faults::begin({Kind::allocation, ENOMEM, false}, 0);
  void* const volatile memory = std::malloc(1);
  std::free(memory);
  return faults::end();
}

TEST(Shortage, OfAnyCallPasses) {
  const testing::TemporaryDirectory directory;
  directoryOfBundle = directory.path();
  directory.write("real/Localizable.strings", "\"a\" = \"text\";");
  // A link, so that its kind takes another call.
  std::filesystem::create_directory_symlink("real", directory.path() + "/de.lproj");
  for (const Shortage& shortage : kShortages) {
    if (shortage.kind == Kind::allocation && !canAllocationsFail()) continue;
    int failures = 0;
    for (const Operation& operation : kOperations) {
      Outcome found = failed;
      // All of the first hundred, and then fewer and fewer.
      for (int before = 0; found == failed; before += 1 + before / 100) {
        found = outcome(operation, shortage, before);
        if (found == failed) ++failures;
        EXPECT_LE(found, failed) << operation.name << ", " << std::strerror(shortage.number) << " at "
                                 << before << (shortage.lasts ? " and on: " : ": ") << found;
      }
    }
    EXPECT_GE(failures, 30) << std::strerror(shortage.number);
  }
}

}  // namespace
}  // namespace zk
