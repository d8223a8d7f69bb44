#include <ZKStrings/tools/texts/TextSize.h>

#include <cstdint>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/utext.h>

namespace zk::tools {

namespace {

icu::BreakIterator& characterBorders() {
  static thread_local const std::unique_ptr<icu::BreakIterator> borders = [] {
    UErrorCode status = U_ZERO_ERROR;
    return std::unique_ptr<icu::BreakIterator>(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  }();
  return *borders;
}

}  // namespace

std::size_t charactersIn(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  UText view = UTEXT_INITIALIZER;
  utext_openUTF8(&view, text.data(), static_cast<std::int64_t>(text.size()), &status);
  icu::BreakIterator& borders = characterBorders();
  borders.setText(&view, status);
  std::size_t characters = 0;
  for (borders.first(); borders.next() != icu::BreakIterator::DONE;) ++characters;
  utext_close(&view);
  return characters;
}

}  // namespace zk::tools
