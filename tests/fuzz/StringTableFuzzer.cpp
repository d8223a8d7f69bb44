#include <ZKStrings/platform/formats/StringTable.h>
#include <ZKStrings/tests/TemporaryDirectory.h>
#include <ZKStrings/tests/fuzz/Decoding.h>
#include <ZKStrings/tests/fuzz/Fuzzing.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <unicode/uchar.h>

/// The file of a string table, against a second reader, which takes the text apart into tokens first.

namespace zk::fuzzing {

namespace {

/// What a quoted token stands for: in UTF-16, in which each escape is one unit.
std::string plainlyUnescaped(const icu::UnicodeString& token) {
  constexpr std::u16string_view kLetters = u"\"\\ntrabfv";
  constexpr std::u16string_view kMeanings = u"\"\\\n\t\r\a\b\f\v";
  icu::UnicodeString text;
  for (std::int32_t at = 0; at < token.length(); ++at) {
    if (token[at] != u'\\') {
      text.append(token[at]);
      continue;
    }
    const char16_t escaped = token[++at];
    const std::int8_t base = escaped == u'U' ? 16 : 8;
    const std::int32_t begin = base == 16 ? at + 1 : at;
    std::int32_t end = begin;
    std::int32_t number = 0;
    for (; end < begin + (base == 16 ? 4 : 3) && token[end] < 0x80 && u_digit(token[end], base) >= 0; ++end)
      number = number * base + u_digit(token[end], base);
    if (const std::size_t letter = kLetters.find(escaped); letter != kLetters.npos) {
      text.append(kMeanings[letter]);
    } else if (end > begin) {
      text.append(static_cast<char16_t>(base == 8 ? number & 0xFF : number));
      at = end - 1;
    } else {
      text.append(escaped);
    }
  }
  return utf8(text);
}

/// Whether the character at `at` belongs to a token without quotes.
bool isUnquoted(const icu::UnicodeString& file, std::int32_t at) {
  const char16_t unit = file[at];
  const bool isSign = icu::UnicodeString(u"_$/:.-").indexOf(unit) >= 0;
  return unit < 0x80 && (u_isalnum(unit) || isSign) && file.compare(at, 2, u"/*") != 0;
}

/// Where the token, comment or blank ends that begins at `at`; negative when none does or it has no end.
std::int32_t endOfToken(const icu::UnicodeString& file, std::int32_t at) {
  const std::u16string_view rest(file.getBuffer() + at, static_cast<std::size_t>(file.length() - at));
  std::size_t size = 1;
  if (rest.starts_with(u"//")) {
    size = std::min(rest.find(u'\n'), rest.size());
  } else if (rest.starts_with(u"/*")) {
    const std::size_t mark = rest.find(u"*/", 2);
    if (mark == rest.npos) return -1;
    size = mark + 2;
  } else if (rest[0] == u'"') {
    while (size < rest.size() && rest[size] != u'"') size += rest[size] == u'\\' ? 2 : 1;
    if (++size > rest.size()) return -1;
  } else if (isUnquoted(file, at)) {
    while (isUnquoted(file, at + static_cast<std::int32_t>(size))) ++size;
  } else if (rest.find_first_of(u" \t\n\v\f\r=;") != 0) {
    return -1;
  }
  return at + static_cast<std::int32_t>(size);
}

/// Texts behind a quote, and the marks "=" and ";"; "?" is the last for what is no token.
std::vector<std::string> tokensOf(const icu::UnicodeString& file) {
  std::vector<std::string> tokens;
  for (std::int32_t at = 0; at < file.length();) {
    const std::int32_t end = endOfToken(file, at);
    if (end < 0) {
      tokens.emplace_back("?");
      break;
    }
    if (file[at] == u'"') {
      tokens.push_back("\"" + plainlyUnescaped(file.tempSubStringBetween(at + 1, end - 1)));
    } else if (isUnquoted(file, at) && file.compare(at, 2, u"//") != 0) {
      tokens.push_back("\"" + utf8(file.tempSubStringBetween(at, end)));
    } else if (file[at] == u'=' || file[at] == u';') {
      tokens.emplace_back(1, static_cast<char>(file[at]));
    }
    at = end;
  }
  return tokens;
}

/// Each key's last text; nothing when the tokens are no table.
std::optional<std::map<std::string, std::string>> textsOf(const std::vector<std::string>& tokens) {
  std::map<std::string, std::string> texts;
  if (tokens.size() % 4 != 0) return std::nullopt;
  for (std::size_t i = 0; i < tokens.size(); i += 4) {
    if (tokens[i][0] != '"' || tokens[i + 1] != "=" || tokens[i + 2][0] != '"' || tokens[i + 3] != ";")
      return std::nullopt;
    texts[tokens[i].substr(1)] = tokens[i + 2].substr(1);
  }
  return texts;
}

StringTable tableIn(const std::string& path, std::size_t bytes) {
  const TimeLimit limit(bytes);
  std::error_code unused;
  return StringTable::inFile(path, unused);
}

}  // namespace

void test(std::string_view input) {
  static const testing::TemporaryDirectory directory;
  const StringTable table = tableIn(directory.write("t.strings", input), input.size());
  const auto file = decodedByICU(input);
  const std::vector<std::string> tokens = file ? tokensOf(*file) : std::vector<std::string>{"\"", "?"};
  const auto texts = textsOf(tokens);
  for (const std::string& token : tokens) {
    const std::string key = token.substr(1);
    const auto text = texts ? texts->find(key) : decltype(texts->end())();
    if (!texts || text == texts->end()) {
      require(!table.find(key), "it has a text for " + token);
    } else {
      require(table.find(key) == text->second, "it has another text for " + token);
    }
  }
}

}  // namespace zk::fuzzing
