// What the module does while calls of the system or allocations fail: each use of it gives the right text, its
// documented quiet outcome or std::bad_alloc, and when the failure is over, all is as if it had never been.

#include <ZKStrings/ZKStrings.h>
#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/faults/Failures.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zk {
namespace {

using faults::Failure;
using faults::Kind;

std::string directoryOfBundle;

std::string textIn(const std::string& directory) {
  return localizedString(Bundle::initWithPath(directory), "a", "value", std::nullopt, {});
}

std::string textInBundle() {
  return textIn(directoryOfBundle);
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
  bool isFirst;       // what it does, a process does once: each failure needs a fresh process
  void (*prepare)();  // before the failure
  std::string (*act)();
  const char* right;
  const char* quiet;    // what the failure of a call of the system may make of it
  const char* refused;  // and what a refusal may, also later: unlike the others it is an answer
};

constexpr void (*kNothing)() = [] {};

const Operation kOperations[] = {
    {"the first text of all", true, kNothing, [] { return assignGerman(), about(); }, "Über uns", "English",
     "About"},
    {"the first text in a known directory", true, [] { assignGerman(), static_cast<void>(bundle()); }, about,
     "Über uns", "English", "About"},
    {"the first text in another language", true,
     [] { assignGerman(), static_cast<void>(about()), assign("fr"); }, about, "À propos", "English", "About"},
    {"a later text", false, assignGerman, about, "Über uns", "", ""},
    {"a later text by an accessor", false, assignGerman,
     [] { return ZKStrings::Are_you_sure_you_want_to_kick_username("a player with a long name"); },
     "Möchtest du a player with a long name wirklich rauswerfen?", "", ""},
    {"the first language", true, kNothing, [] { return std::to_string(Language().countries.size()); }, "246",
     "0", "0"},
    {"a later language", false, assignGerman, [] { return std::to_string(Language().countries.size()); },
     "246", "0", "0"},
    {"the app's directory", true, kNothing,
     [] { return mainBundle().path().empty() ? "nowhere" : std::string("somewhere"); }, "somewhere",
     "nowhere", "nowhere"},
    {"a bundle", true, assignGerman, textInBundle, "text", "value", "base"},
    {"a language that has gone", true,
     [] {
       assignGerman();
       const std::string german = directoryOfBundle + "/gone/de.lproj";
       std::filesystem::create_directory(german);
       static_cast<void>(Bundle::initWithPath(directoryOfBundle + "/gone"));
       std::filesystem::remove(german);
     },
     [] { return textIn(directoryOfBundle + "/gone"); }, "base", "value", ""},
    {"an assignment", false, assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Language language;
         language.preferredLanguages = list;
         Current::language = language;
       });
     },
     "fr-FR", "", ""},
    {"a change in place", false, assignGerman,
     [] {
       return firstLanguageAfter(
           [](const SharedArray<std::string>& list) { Current::language->preferredLanguages = list; });
     },
     "fr-FR", "", ""},
    {"a change by a function", false, assignGerman,
     [] {
       return firstLanguageAfter([](const SharedArray<std::string>& list) {
         Current::language.change([&](Language& language) { language.preferredLanguages = list; });
       });
     },
     "fr-FR", "", ""},
    {"an identifier of joined emoji", true, [] { assign("👨‍👩‍👧🇩🇪x"); }, about, "About",
     "English", ""},
    {"an identifier with an accent", true, [] { assign("de\u0301x"); }, about, "About", "English", ""},
    {"names with accents", true, assignGerman,
     [] {
       return localizedString("none", "%{cafe\u0301\u0316} und %{é}", std::nullopt,
                              {{"caf\u00E9\u0316", "kim"}, {"e\u0301", "a text that is not so short"}});
     },
     "kim und a text that is not so short", "", ""},
    {"what follows a placeholder", true, assignGerman,
     [] {
       return localizedString("none", "%{a}\u0301 %{a}é", std::nullopt,
                              {{"a", "a longer text than all those"}});
     },
     "%{a}\u0301 a longer text than all thoseé", "", ""},
    {"upper case", true, kNothing,
     [] {
       return Country::fromDictionary({{"name", "A"}, {"phoneCode", 1}, {"iso", "äß"}})->emoji();
     },
     "\U0001F269\U0001F1F8\U0001F1F8", "", ""},
    {"JSON", true, kNothing,
     [] {
       const auto value = parseJson(R"([1e999, "a text that is not short", {"a": [1.5]}])");
       return std::to_string(value ? value->as<Value::List>()->size() : 0);
     },
     "3", "", ""},
};

enum Outcome { notFailed, failed, wrong, lasted, stopped };

/// Runs `operation` in this process while the call with `before` others before it fails, and then without failure.
Outcome outcomeHere(const Operation& operation, const Failure& failure, int before) noexcept {
  operation.prepare();
  std::string result = "bad_alloc";
  faults::begin(failure, before);
  try {
    result = operation.act();
  } catch (const std::bad_alloc&) {
  }
  const bool hasFailed = faults::end();
  const auto isOutcome = [&](const char* outcome) { return hasFailed && *outcome && result == outcome; };
  const bool isRefused = failure.number == EACCES && isOutcome(operation.refused);
  const bool hasThrown = failure.kind == Kind::allocation && isOutcome("bad_alloc");
  if (result != operation.right && !isOutcome(operation.quiet) && !isRefused && !hasThrown) return wrong;
  operation.prepare();
  const std::string later = operation.act();
  if (failure.number == EACCES && later == operation.refused) return failed;
  if (later != operation.right) return lasted;
  assignGerman();
  const bool isWhole = about() == "Über uns" && textInBundle() == "text";
  return !isWhole ? lasted : hasFailed ? failed : notFailed;
}

/// The outcome of `act` in a process of its own, which must end within a minute. When the resources were refused,
/// the process is to stop.
template <class Act>
Outcome outcomeElsewhere(const Failure& failure, Act act) {
  constexpr unsigned kSeconds = 60;
  const pid_t child = fork();
  if (child == 0) {
    alarm(kSeconds);
    _exit(act());
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status)) return static_cast<Outcome>(WEXITSTATUS(status));
  const bool isTrapped = WTERMSIG(status) == SIGILL || WTERMSIG(status) == SIGTRAP;
  return failure.number == EACCES && isTrapped ? failed : stopped;
}

/// Whether allocations can be made to fail here; sanitizers have an allocator of their own.
bool canAllocationsFail() {
  faults::begin({Kind::allocation, ENOMEM, false}, 0);
  void* const volatile memory = std::malloc(1);
  std::free(memory);
  return faults::end();
}

class Failures : public ::testing::TestWithParam<Failure> {
 protected:
  void SetUp() override {
    if (GetParam().kind == Kind::allocation && !canAllocationsFail())
      GTEST_SKIP() << "the sanitizer's allocations cannot be made to fail";
    directory.write("real/Localizable.strings", "\"a\" = \"text\";");
    for (const char* base : {"Base.lproj", "gone/Base.lproj"})
      directory.write(base + std::string("/Localizable.strings"), "\"a\" = \"base\";");
    // A link, so that its kind takes another call.
    std::filesystem::create_directory_symlink("real", directory.path() + "/de.lproj");
    directoryOfBundle = directory.path();
  }

  const testing::TemporaryDirectory directory;
};

TEST_P(Failures, OfAnyCallPass) {
  const Failure& failure = GetParam();
  // Shared with the processes that try.
  struct Progress {
    int before, failures;
  };
  void* const shared =
      mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto& progress = *static_cast<Progress*>(shared);
  for (const Operation& operation : kOperations) {
    const auto attempt = [&] { return outcomeHere(operation, failure, progress.before++); };
    const auto attemptAll = [&] {
      operation.prepare();
      static_cast<void>(operation.act());
      while (const Outcome outcome = attempt()) {
        if (outcome != failed) return outcome;
      }
      return notFailed;
    };
    Outcome outcome = failed;
    progress.before = 0;
    while (outcome == failed) {
      outcome =
          operation.isFirst ? outcomeElsewhere(failure, attempt) : outcomeElsewhere(failure, attemptAll);
    }
    const int last = progress.before - 1;
    EXPECT_EQ(outcome, notFailed) << operation.name << ", " << std::strerror(failure.number) << " at "
                                  << last;
    progress.failures += last;
  }
  EXPECT_GE(progress.failures, failure.kind == Kind::shortRead ? 10 : 100);
  munmap(shared, sizeof(Progress));
}

std::string nameOf(const ::testing::TestParamInfo<Failure>& info) {
  const Failure& failure = info.param;
  const std::string error = failure.kind == Kind::allocation  ? "Allocation"
                            : failure.kind == Kind::shortRead ? "ShortRead"
                                                              : strerrorname_np(failure.number);
  return error + (failure.lasts ? "Lasting" : "Once");
}

INSTANTIATE_TEST_SUITE_P(
    , Failures,
    ::testing::Values(Failure{Kind::systemCall, EMFILE, false},  //
                      Failure{Kind::systemCall, EMFILE, true}, Failure{Kind::systemCall, ENFILE, false},
                      Failure{Kind::systemCall, ENFILE, true}, Failure{Kind::systemCall, ENOMEM, false},
                      Failure{Kind::systemCall, ENOMEM, true}, Failure{Kind::systemCall, EIO, false},
                      Failure{Kind::systemCall, EIO, true}, Failure{Kind::systemCall, EINTR, false},
                      Failure{Kind::systemCall, EAGAIN, false}, Failure{Kind::systemCall, EACCES, false},
                      Failure{Kind::systemCall, EACCES, true}, Failure{Kind::shortRead, 0, false},  //
                      Failure{Kind::shortRead, 0, true}, Failure{Kind::allocation, ENOMEM, false},
                      Failure{Kind::allocation, ENOMEM, true}),
    nameOf);

/// The operations that need ICU's tables, which ICU sets up once.
template <class Visit>
void forOperationsOfICU(Visit visit) {
  for (const Operation& operation : kOperations) {
    const std::string_view name = operation.name;
    if (name.starts_with("an identifier") || name == "names with accents" ||
        name == "what follows a placeholder")
      visit(operation);
  }
}

/// Takes all memory of the process but for a block of `size` bytes, and gives it back at its end.
class ExhaustedMemory {
 public:
  explicit ExhaustedMemory(std::size_t size) {
    void* const left = std::malloc(size);
    rlimit nothing{};
    getrlimit(RLIMIT_AS, &before_);
    nothing.rlim_max = before_.rlim_max;
    setrlimit(RLIMIT_AS, &nothing);
    for (std::size_t part = 1 << 20; part >= sizeof(Block); part /= 2) {
      while (void* const memory = std::malloc(part)) blocks_ = new (memory) Block{blocks_};
    }
    std::free(left);
  }
  ExhaustedMemory(const ExhaustedMemory&) = delete;
  ExhaustedMemory& operator=(const ExhaustedMemory&) = delete;
  ~ExhaustedMemory() {
    while (blocks_) std::free(std::exchange(blocks_, blocks_->next));
    setrlimit(RLIMIT_AS, &before_);
  }

 private:
  struct Block {
    Block* next;
  };
  Block* blocks_ = nullptr;
  rlimit before_{};
};

TEST(Memory, ThatIsExhaustedHarmsNothing) {
  if (!canAllocationsFail()) GTEST_SKIP() << "sanitizers need more memory than they could have";
  int failures = 0;
  forOperationsOfICU([&](const Operation& operation) {
    for (std::size_t size = 64; size < 256 * 1024; size += 64 + size / 8) {
      const Outcome outcome = outcomeElsewhere({}, [&]() noexcept {
        operation.prepare();
        bool hasThrown = false;
        try {
          const ExhaustedMemory exhausted(size);
          static_cast<void>(operation.act());
        } catch (const std::bad_alloc&) {
          hasThrown = true;
        }
        operation.prepare();
        return operation.act() != operation.right ? lasted : hasThrown ? failed : notFailed;
      });
      EXPECT_LE(outcome, failed) << operation.name << " with " << size << " bytes: " << outcome;
      if (outcome == failed) ++failures;
    }
  });
  EXPECT_GT(failures, 30);
}

// Where memory is refused right behind the block that the module has just seen to be free, ICU remembers that. Texts
// that need its tables are not to be had then, and no other one is harmed.
TEST(Memory, ThatIsRefusedToICUAtItsFirstUseIsMissedByTextsThatNeedIt) {
  if (!canAllocationsFail()) GTEST_SKIP() << "the sanitizer's allocations cannot be made to fail";
  forOperationsOfICU([](const Operation& operation) {
    Outcome outcome = failed;
    for (int before = 0; outcome == failed; ++before) {
      outcome = outcomeElsewhere({}, [&]() noexcept {
        operation.prepare();
        faults::leaveNoRoom();
        faults::begin({Kind::allocation, ENOMEM, false}, before);
        const auto textOrNothing = [&] {
          try {
            return operation.act();
          } catch (const std::bad_alloc&) {
            return std::string(operation.right);
          }
        };
        const std::string during = textOrNothing();
        if (during != operation.right && during != operation.quiet) return wrong;
        const bool hasFailed = faults::end();
        if (textOrNothing() != operation.right) return lasted;
        assignGerman();
        return about() != "Über uns" ? lasted : hasFailed ? failed : notFailed;
      });
      EXPECT_LE(outcome, failed) << operation.name << " at " << before << ": " << outcome;
    }
  });
}

}  // namespace
}  // namespace zk
