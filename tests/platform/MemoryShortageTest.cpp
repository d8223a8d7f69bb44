// A shortage of memory that passes: while it lasts, std::bad_alloc or the right result comes out, and when it is
// over, all is as if it had never been. Each shortage is tried in a process of its own, since libraries do much
// of their allocating at their first use.
#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* memory, std::size_t size) noexcept;
void __libc_free(void* memory) noexcept;
}

namespace {

constexpr std::size_t kUnlimited = SIZE_MAX / 2;
std::size_t available = kUnlimited;

/// Gives up `memory` again when there is not so much.
void* withinLimit(void* memory) noexcept {
  const std::size_t size = malloc_usable_size(memory);
  if (size > available) {
    __libc_free(memory);
    return nullptr;
  }
  available -= size;
  return memory;
}

}  // namespace

// These take the place of the C library's, for all libraries of this program.
extern "C" {
void* malloc(std::size_t size) noexcept {
  return withinLimit(__libc_malloc(size));
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  return withinLimit(__libc_calloc(count, size));
}
void* realloc(void* memory, std::size_t size) noexcept {
  if (size > available) return nullptr;
  available += malloc_usable_size(memory);
  void* const moved = __libc_realloc(memory, size);
  available -= malloc_usable_size(moved);
  return moved;
}
void free(void* memory) noexcept {
  available += malloc_usable_size(memory);
  __libc_free(memory);
}
}

namespace zk {
namespace {

struct Operation {
  const char* name;
  bool (*isRight)();
};

constexpr Operation kOperations[] = {
    {"a joined emoji",
     [] { return firstTwoCharacters("👨‍👩‍👧🇩🇪x") == "👨‍👩‍👧🇩🇪"; }},
    {"an accent", [] { return firstTwoCharacters("de\u0301x") == "de\u0301"; }},
    {"a character alone", [] { return findCharacter("a-\u0301b-c", '-') == 5; }},
    {"upper case",
     [] {
       return upperCased("straße, lang genug für ein Stück Speicher") ==
              "STRASSE, LANG GENUG FÜR EIN STÜCK SPEICHER";
     }},
    {"a canonical search",
     [] {
       std::string text = "%{cafe\u0301\u0316} und noch viele andere";
       replaceOccurrences(text, "%{caf\u00E9\u0316}", "kim");
       return text == "kim und noch viele andere";
     }},
    {"what follows a placeholder",
     [] {
       std::string text = "%{a}\u0301 %{a}é";
       replaceOccurrences(text, "%{a}", "a longer text than all those before");
       return text == "%{a}\u0301 a longer text than all those beforeé";
     }},
    {"JSON",
     [] {
       const std::optional<Value> value = parseJson(R"([1e999, "a text that is not short", {"a": [1.5]}])");
       return value && value->as<Value::List>()->size() == 3;
     }},
};

enum Outcome { right, wrong, noMemory, crashed };

Outcome tried(const Operation& operation) {
  try {
    return operation.isRight() ? right : wrong;
  } catch (const std::bad_alloc&) {
    return noMemory;
  }
}

/// What becomes of `operation` in a process that has only `bytes` to spare, and then, when there is enough
/// again. `isWarm` when it was done before.
std::pair<Outcome, Outcome> outcomes(const Operation& operation, std::size_t bytes, bool isWarm) {
  const pid_t process = fork();
  if (process == 0) {
    if (isWarm) static_cast<void>(tried(operation));
    available = bytes;
    const Outcome during = tried(operation);
    available = kUnlimited;
    _exit(during << 4 | tried(operation));
  }
  int status = 0;
  waitpid(process, &status, 0);
  if (!WIFEXITED(status)) return {crashed, crashed};
  return {static_cast<Outcome>(WEXITSTATUS(status) >> 4), static_cast<Outcome>(WEXITSTATUS(status) & 15)};
}

TEST(MemoryShortage, GivesBadAllocAndPasses) {
  for (const Operation& operation : kOperations) {
    for (const bool isWarm : {false, true}) {
      for (std::size_t bytes = 0; bytes < 128 * 1024; bytes += bytes < 4096 ? 32 : 4096) {
        const auto [during, afterwards] = outcomes(operation, bytes, isWarm);
        EXPECT_TRUE(during == right || during == noMemory) << operation.name << " " << bytes << " " << during;
        EXPECT_EQ(afterwards, right) << operation.name << " " << bytes;
      }
    }
  }
}

}  // namespace
}  // namespace zk
