// What the module does while the process is short of descriptors or memory. This program stands between the
// module and the C library, so that any one call can be made to fail.

#include <ZKStrings/engine/BundleGlobals.h>
#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>
#include <ZKStrings/region/CurrentLanguage.h>
#include <ZKStrings/tests/TemporaryDirectory.h>

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <new>
#include <string>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What is to fail: the call of the given kind that has `callsBefore` others before it.
enum class Kind { nothing, systemCall, allocation };
Kind failingKind = Kind::nothing;
int callsBefore = 0;
int failingNumber = 0;

bool failsNow(Kind kind) {
  if (kind != failingKind || callsBefore-- > 0) return false;
  failingKind = Kind::nothing;
  errno = failingNumber;
  return true;
}

template <class Function>
Function* real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void* allocated(std::size_t size, std::size_t alignment) {
  void* memory = nullptr;
  if (failsNow(Kind::allocation) || posix_memalign(&memory, alignment, size) != 0) throw std::bad_alloc();
  return memory;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  return failsNow(Kind::systemCall) ? -1 : real<int(const char*, int, ...)>("open")(path, flags);
}
DIR* opendir(const char* path) {
  return failsNow(Kind::systemCall) ? nullptr : real<DIR*(const char*)>("opendir")(path);
}
ssize_t read(int file, void* bytes, size_t size) {
  return failsNow(Kind::systemCall) ? -1 : real<ssize_t(int, void*, size_t)>("read")(file, bytes, size);
}
int fstat(int file, struct stat* status) noexcept {
  return failsNow(Kind::systemCall) ? -1 : real<int(int, struct stat*)>("fstat")(file, status);
}
int stat(const char* path, struct stat* status) noexcept {
  return failsNow(Kind::systemCall) ? -1 : real<int(const char*, struct stat*)>("stat")(path, status);
}
dirent* readdir(DIR* directory) {
  return failsNow(Kind::systemCall) ? nullptr : real<dirent*(DIR*)>("readdir")(directory);
}

}  // extern "C"

// Not inlined, since the compiler would take a part of a pair for a mistake then.
[[gnu::noinline]] void* operator new(std::size_t size) {
  return allocated(size, alignof(std::max_align_t));
}
[[gnu::noinline]] void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocated(size, static_cast<std::size_t>(alignment));
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::align_val_t) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  std::free(memory);
}

namespace zk {
namespace {

using testing::TemporaryDirectory;

struct Shortage {
  Kind kind;
  int number;
};
constexpr Shortage kShortages[] = {
    {Kind::systemCall, EMFILE}, {Kind::systemCall, ENFILE}, {Kind::systemCall, ENOMEM},
    {Kind::systemCall, EIO},    {Kind::systemCall, EINTR},  {Kind::systemCall, EAGAIN},
    {Kind::allocation, 0},
};

std::ostream& operator<<(std::ostream& out, const Shortage& shortage) {
  return out << (shortage.kind == Kind::allocation ? "an allocation" : strerrorname_np(shortage.number));
}

/// What `action` gives while the call with `before` others before it fails; "bad_alloc" when that is thrown.
template <class Action>
std::string resultWithFailure(const Shortage& shortage, int before, Action action) {
  callsBefore = before;
  failingNumber = shortage.number;
  failingKind = shortage.kind;
  std::string result;
  try {
    result = action();
  } catch (const std::bad_alloc&) {
    result = "bad_alloc";
  }
  return result;
}

/// Whether the failure that was ordered has happened; it is called off if not.
bool hasFailed() {
  return std::exchange(failingKind, Kind::nothing) == Kind::nothing;
}

std::string textInDirectory(const std::string& path) {
  const Bundle* const bundle = Bundle::initWithPath(path);
  const ResourcePath* const german = bundle ? bundle->pathForResource("de", "lproj") : nullptr;
  const Bundle* const opened = german ? Bundle::initWithPath(*german) : nullptr;
  return std::string(opened ? opened->localizedStringForKey("a", "value") : "value");
}

TEST(Shortage, OfAnyCallWhileABundleIsOpenedPasses) {
  for (const Shortage& shortage : kShortages) {
    int points = 0;
    for (;; ++points) {
      const TemporaryDirectory directory;
      directory.write("real/Localizable.strings", "\"a\" = \"text\";");
      // A link, so that its kind takes another call.
      std::filesystem::create_directory_symlink("real", directory.path() + "/de.lproj");
      const auto look = [&] { return textInDirectory(directory.path()); };
      const std::string result = resultWithFailure(shortage, points, look);
      const bool failed = hasFailed();
      const std::string quiet = shortage.kind == Kind::allocation ? "bad_alloc" : "value";
      EXPECT_TRUE(result == "text" || (failed && result == quiet))
          << shortage << " at " << points << ": " << result;
      EXPECT_EQ(look(), "text") << shortage << " at " << points;
      if (!failed) break;
    }
    EXPECT_GE(points, 10) << shortage;
  }
}

/// Runs `action` in a process of its own, where nothing was looked up before, and gives what that exits with;
/// -1 when it is stopped.
template <class Action>
int exitCodeOf(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The first thing that an app does.
std::string firstText() {
  Language language;
  language.preferredLanguages = {"de-DE"};
  Current::language = language;
  return localizedString("About", "English", std::nullopt, {});
}

bool everythingIsThere() {
  return firstText() == "Über uns" && Language().countries.size() > 200 &&
         mainBundle().path() == std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

TEST(Shortage, OfAnyCallBeforeTheFirstTextPasses) {
  enum Outcome { passed, hasNotFailed, wrongText, lasted };
  for (const Shortage& shortage : kShortages) {
    int outcome = passed;
    int points = 0;
    for (; outcome == passed; ++points) {
      outcome = exitCodeOf([&] {
        const std::string text = resultWithFailure(shortage, points, firstText);
        const bool failed = hasFailed();
        const bool isQuiet = text == "English" || (shortage.kind == Kind::allocation && text == "bad_alloc");
        if (text != "Über uns" && !(failed && isQuiet)) return wrongText;
        if (!everythingIsThere()) return lasted;
        return failed ? passed : hasNotFailed;
      });
    }
    EXPECT_EQ(outcome, hasNotFailed) << shortage << " at " << points;
    EXPECT_GE(points, 10) << shortage;
  }
}

TEST(Shortage, OfDescriptorsGivesTheEnglishTextsUntilItIsOver) {
  const auto setDescriptors = [](rlim_t count) {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const rlim_t before = std::exchange(limit.rlim_cur, count);
    setrlimit(RLIMIT_NOFILE, &limit);
    return before;
  };
  const int outcome = exitCodeOf([&] {
    const rlim_t before = setDescriptors(0);
    for (int call = 0; call < 3; ++call) {
      if (firstText() != "English" || !Language().countries.empty()) return 1;
      if (bundle().pathForResource("de", "lproj") || !mainBundle().path().empty()) return 2;
    }
    setDescriptors(before);
    return everythingIsThere() ? 0 : 3;
  });
  EXPECT_EQ(outcome, 0);

  // Everything is listed, but no table is open yet.
  const int outcomeWithBundle = exitCodeOf([&] {
    static_cast<void>(bundle());
    const rlim_t before = setDescriptors(0);
    if (firstText() != "English") return 1;
    setDescriptors(before);
    return everythingIsThere() ? 0 : 3;
  });
  EXPECT_EQ(outcomeWithBundle, 0);
}

}  // namespace
}  // namespace zk
