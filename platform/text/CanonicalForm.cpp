#include <ZKStrings/platform/text/Bytes.h>
#include <ZKStrings/platform/text/CanonicalForm.h>

#include <cstdint>
#include <new>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>

namespace zk {

std::string canonicalForm(std::string_view text) {
  if (findNonAscii(text, 0) >= text.size()) return std::string(text);
  std::string form;
  icu::StringByteSink<std::string> sink(&form);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* const composition = icu::Normalizer2::getNFCInstance(status);
  const icu::StringPiece piece(text.data(), static_cast<std::int32_t>(text.size()));
  if (U_SUCCESS(status)) composition->normalizeUTF8(0, piece, sink, nullptr, status);
  if (U_FAILURE(status)) throw std::bad_alloc();
  return form;
}

}  // namespace zk
