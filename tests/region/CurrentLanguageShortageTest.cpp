// What a change of the current language does when memory runs out. A program of its own, as it replaces the
// allocation functions.

#include <ZKStrings/region/CurrentLanguage.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>

namespace {

int allocationsLeft = -1;  // negative: as many as anyone likes

void* allocated(std::size_t size, std::size_t alignment) {
  if (allocationsLeft == 0) throw std::bad_alloc();
  if (allocationsLeft > 0) --allocationsLeft;
  const std::size_t unit = alignment < sizeof(void*) ? sizeof(void*) : alignment;
  if (void* const memory = std::aligned_alloc(unit, (size + unit - 1) / unit * unit)) return memory;
  throw std::bad_alloc();
}

// Not inlined, where the compiler would take it for a mismatch with `new`.
[[gnu::noinline]] void release(void* memory) {
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) {
  return allocated(size, alignof(std::max_align_t));
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocated(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept {
  release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  release(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  release(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  release(memory);
}

namespace zk {
namespace {

/// Calls `change` with no memory after 0, 1, 2, ... allocations until it succeeds, and looks each time that it
/// either was made or threw without effect. Gives the number of failures.
template <class Change>
int failuresUntilMade(Change change) {
  const SharedArray<std::string> before = {"de-DE"};
  const SharedArray<std::string> after = {"fr-FR"};
  for (int failures = 0;; ++failures) {
    Language language;
    language.preferredLanguages = before;
    Current::language = language;
    allocationsLeft = failures;
    bool wasMade = true;
    try {
      change(after);
    } catch (const std::bad_alloc&) {
      wasMade = false;
    }
    allocationsLeft = -1;
    const SharedArray<std::string>& expected = wasMade ? after : before;
    EXPECT_TRUE(Current::language.get().preferredLanguages.sharesElementsWith(expected)) << failures;
    if (wasMade) return failures;
  }
}

TEST(CurrentLanguageShortage, AChangeIsMadeOrThrowsWithoutEffect) {
  EXPECT_GT(failuresUntilMade(
                [](const SharedArray<std::string>& list) { Current::language->preferredLanguages = list; }),
            0);
  EXPECT_GT(failuresUntilMade([](const SharedArray<std::string>& list) {
              Current::language.change([&](Language& language) { language.preferredLanguages = list; });
            }),
            0);
  Language language;
  EXPECT_GT(failuresUntilMade([&](const SharedArray<std::string>& list) {
              language.preferredLanguages = list;
              Current::language = language;
            }),
            0);
}

}  // namespace
}  // namespace zk
