#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <unicode/ucnv.h>
#include <unicode/unistr.h>

namespace zk::fuzzing {

inline std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  return text.toUTF8String(bytes);
}

/// The text of `bytes` in the encoding that its byte-order mark tells, or else in UTF-8, as ICU's converters
/// read it. Nothing when it is malformed.
inline std::optional<icu::UnicodeString> decodedByICU(std::string_view bytes) {
  using namespace std::string_view_literals;
  std::pair<std::string_view, const char*> encoding{"", "UTF-8"};
  for (const auto& marked : {std::pair{"\xEF\xBB\xBF"sv, "UTF-8"}, std::pair{"\xFF\xFE"sv, "UTF-16LE"},
                             std::pair{"\xFE\xFF"sv, "UTF-16BE"}, std::pair{"\xFF\xFE\0\0"sv, "UTF-32LE"},
                             std::pair{"\0\0\xFE\xFF"sv, "UTF-32BE"}}) {
    if (bytes.starts_with(marked.first)) encoding = marked;
  }
  bytes.remove_prefix(encoding.first.size());
  UErrorCode status = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(encoding.second, &status);
  ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  icu::UnicodeString text;
  const auto size = static_cast<std::int32_t>(bytes.size());
  char16_t* const units = text.getBuffer(size + 1);
  const std::int32_t length = ucnv_toUChars(converter, units, size + 1, bytes.data(), size, &status);
  text.releaseBuffer(U_SUCCESS(status) ? length : 0);
  ucnv_close(converter);
  if (U_FAILURE(status)) return std::nullopt;
  return text;
}

}  // namespace zk::fuzzing
