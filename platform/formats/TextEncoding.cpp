#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/UnicodeText.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <unicode/utf.h>

namespace zk {

namespace {

using namespace std::string_view_literals;

struct Encoding {
  std::string_view mark;
  std::size_t unit;  // bytes per code unit
  bool bigEndian;
};

// The mark of UTF-32 begins with that of UTF-16, so UTF-32 comes first.
constexpr Encoding kMarked[] = {
    {kByteOrderMark, 1, false}, {"\xFF\xFE\0\0"sv, 4, false}, {"\0\0\xFE\xFF"sv, 4, true},
    {"\xFF\xFE"sv, 2, false},   {"\xFE\xFF"sv, 2, true},
};

/// The encoding of a text that begins with a byte-order mark or with an ASCII character, whose zero bytes show it.
Encoding encodingOf(std::string_view bytes) {
  for (const Encoding& encoding : kMarked) {
    if (bytes.starts_with(encoding.mark)) return encoding;
  }
  const auto isZero = [&](std::size_t at) { return at < bytes.size() && bytes[at] == '\0'; };
  if (isZero(0) && isZero(1) && isZero(2)) return {"", 4, true};
  if (isZero(1) && isZero(2) && isZero(3)) return {"", 4, false};
  if (isZero(0)) return {"", 2, true};
  return {"", isZero(1) ? std::size_t{2} : 1, false};
}

char32_t codeUnit(std::string_view bytes, const Encoding& encoding) {
  char32_t unit = 0;
  for (std::size_t i = 0; i < encoding.unit; ++i) {
    const char byte = bytes[encoding.bigEndian ? i : encoding.unit - 1 - i];
    unit = unit << 8 | static_cast<unsigned char>(byte);
  }
  return unit;
}

std::optional<std::string> toUtf8(std::string_view bytes, const Encoding& encoding) {
  if (bytes.size() % encoding.unit != 0) return std::nullopt;
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    char32_t codePoint = codeUnit(bytes, encoding);
    bytes.remove_prefix(encoding.unit);
    if (encoding.unit == 2 && U16_IS_LEAD(codePoint) && !bytes.empty()) {
      const char32_t trail = codeUnit(bytes, encoding);
      if (!U16_IS_TRAIL(trail)) return std::nullopt;
      codePoint = static_cast<char32_t>(U16_GET_SUPPLEMENTARY(codePoint, trail));
      bytes.remove_prefix(encoding.unit);
    }
    if (codePoint > 0x10FFFF || U_IS_SURROGATE(codePoint)) return std::nullopt;
    appendCodePoint(text, codePoint);
  }
  return text;
}

}  // namespace

std::optional<std::string> decodedText(std::string bytes) {
  const Encoding encoding = encodingOf(bytes);
  if (encoding.unit > 1) return toUtf8(std::string_view(bytes).substr(encoding.mark.size()), encoding);
  if (!isUtf8(bytes)) return std::nullopt;
  bytes.erase(0, encoding.mark.size());
  return bytes;
}

}  // namespace zk
