#include <ZKStrings/tools/exchange/POText.h>
#include <ZKStrings/tools/project/Table.h>

#include <algorithm>
#include <cstddef>
#include <optional>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// Takes an octal number of up to three digits off `text`.
char takeOctal(std::string_view& text) {
  unsigned value = 0;
  for (int digits = 0; digits < 3 && !text.empty() && text[0] >= '0' && text[0] <= '7'; ++digits) {
    value = value * 8 + static_cast<unsigned>(text[0] - '0');
    text.remove_prefix(1);
  }
  return static_cast<char>(value);
}

/// Takes an escape, whose backslash is gone, off `text`. Nothing when it is none.
std::optional<char> takeEscape(std::string_view& text) {
  constexpr std::string_view kNames = "abfnrtv\\\"";
  constexpr std::string_view kCharacters = "\a\b\f\n\r\t\v\\\"";
  if (text.empty()) return std::nullopt;
  if (text[0] >= '0' && text[0] <= '7') return takeOctal(text);
  const std::size_t known = kNames.find(text[0]);
  if (known == std::string_view::npos) return std::nullopt;
  text.remove_prefix(1);
  return kCharacters[known];
}

}  // namespace

std::string_view behindBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kPOBlanks), text.size()));
}

std::string quotedForPO(std::string_view text) {
  std::string result;
  for (const char character : escaped(text)) {
    const auto byte = static_cast<unsigned char>(character);
    result += byte < 0x20 ? fmt::format("\\{:03o}", byte) : std::string(1, character);
  }
  return fmt::format("\"{}\"", result);
}

const char* appendUnquoted(std::string_view quoted, std::string& text) {
  constexpr const char* kAdvice = "write the text in quotes, and a backslash before each quote in it";
  std::string_view rest = quoted;
  if (!rest.starts_with('"')) return kAdvice;
  rest.remove_prefix(1);
  while (!rest.empty() && rest[0] != '"') {
    const std::string_view plain = rest.substr(0, rest.find_first_of("\\\""));
    text += plain;
    rest.remove_prefix(plain.size());
    if (!rest.starts_with('\\')) continue;
    rest.remove_prefix(1);
    const std::optional<char> character = takeEscape(rest);
    if (!character) return "a backslash before a character that it gives no meaning; write \\\\ for itself";
    text += *character;
  }
  if (rest.empty()) return "the text's closing quote is missing; the file may be cut off or damaged";
  if (!behindBlanks(rest.substr(1)).empty()) return kAdvice;
  return nullptr;
}

}  // namespace zk::tools
