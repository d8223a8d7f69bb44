#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/Table.h>

#include <algorithm>
#include <optional>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// Tells lines and columns of offsets that are asked for in rising order, reading the text once.
class PositionTeller {
 public:
  explicit PositionTeller(std::string_view text) : text_(text) {}
  Position at(std::size_t offset) {
    for (; at_ < offset; ++at_) {
      if (text_[at_] != '\n') continue;
      ++line_;
      lineBegin_ = at_ + 1;
    }
    return {line_, positionOf(text_.substr(lineBegin_), offset - lineBegin_).column};
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::size_t lineBegin_ = 0;
};

/// The escape that begins at the byte `offset` of `spelled`, with the whole of its character.
std::string escapeAt(std::string_view spelled, std::size_t offset) {
  return "\\" + std::string(firstCodePoint(spelled.substr(offset + 1)).bytes);
}

TableEntry entryFrom(const StringTableReader& reader, const std::string& text, PositionTeller& positions) {
  TableEntry entry;
  const auto spelled = [&](const StringTableReader::Token& token) {
    return text.substr(token.begin, token.end - token.begin);
  };
  const auto plain = [&](const StringTableReader::Token& token) {
    std::string result = spelled(token);
    std::vector<std::size_t> unknown;
    result.resize(unescape(result.data(), result.size(), &unknown));
    for (const std::size_t offset : unknown) {
      entry.unknownEscapes.push_back({positions.at(token.begin + offset), escapeAt(spelled(token), offset)});
    }
    return result;
  };
  for (const auto& comment : reader.comments()) entry.comments.push_back(spelled(comment));
  entry.keyAt = positions.at(reader.key().begin);
  entry.key = plain(reader.key());
  entry.textAt = positions.at(reader.value().begin);
  entry.text = plain(reader.value());
  entry.spelled = spelled(reader.value());
  entry.lastLine = positions.at(reader.value().end).line;
  return entry;
}

/// The first place on each line where the bytes are not UTF-8.
std::vector<Position> illFormedPlaces(std::string_view bytes) {
  std::vector<Position> places;
  const std::vector<std::string_view> lines = linesOf(bytes);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    std::string_view rest = lines[line];
    while (!rest.empty() && firstCodePoint(rest).value) rest.remove_prefix(firstCodePoint(rest).bytes.size());
    if (!rest.empty())
      places.push_back({line + 1, positionOf(lines[line], lines[line].size() - rest.size()).column});
  }
  return places;
}

bool isMarkedUtf16Or32(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
         bytes.starts_with(std::string_view("\0\0\xFE\xFF", 4));
}

}  // namespace

Position TableEntry::placeOf(std::size_t offset) const {
  const auto textSize = [&](std::size_t end) { return unescape(spelled.substr(0, end).data(), end); };
  std::size_t end = spelled.size();
  while (end > 0 && textSize(end) > offset) --end;
  const Position within = positionOf(spelled, end);
  const bool isOnFirstLine = within.line == 1;
  return {textAt.line + within.line - 1, within.column + (isOnFirstLine ? textAt.column - 1 : 0)};
}

Table Table::read(const std::string& root, std::string_view language) {
  const std::string path = tablePath(language);
  try {
    return parse(readFile(root, path), path);
  } catch (const CommandFailed&) {
    return {path,
            {},
            {{Severity::error, path, 1, 1, kMissing,
              "the language has no table that can be read; begin one with zkstrings template"}}};
  }
}

Table Table::parse(std::string bytes, std::string file) {
  Table table{std::move(file), {}, {}};
  const auto fail = [&](Position at, const char* rule, std::string message) {
    table.faults.push_back({Severity::error, table.file, at.line, at.column, rule, std::move(message)});
  };
  std::optional<std::string> text = decodedText(bytes, UnmarkedText::isUtf8);
  if (!text && isMarkedUtf16Or32(bytes)) {
    fail({1, 1}, kEncoding,
         "the bytes are not text in the encoding that the file's mark declares; save the file as UTF-8");
    return table;
  }
  if (!text) {
    if (bytes.starts_with(kUtf8Mark)) bytes.erase(0, kUtf8Mark.size());
    for (const Position at : illFormedPlaces(bytes))
      fail(at, kEncoding, "the bytes here are not UTF-8; save the file as UTF-8");
    text = std::move(bytes);  // what else is wrong shows all the same
  }
  PositionTeller positions(*text);
  StringTableReader reader(*text);
  for (;;) {
    while (reader.next()) table.entries.push_back(entryFrom(reader, *text, positions));
    if (!reader.fault()) return table;
    fail(positionOf(*text, reader.fault()->offset), kSyntax,
         fmt::format("expected {}; write \"key\" = \"text\";", reader.fault()->expected));
    reader.recover();
  }
}

const TableEntry* Table::find(std::string_view key) const {
  const auto found = std::find_if(entries.rbegin(), entries.rend(),
                                  [&](const TableEntry& entry) { return entry.key == key; });
  return found == entries.rend() ? nullptr : &*found;
}

std::string tablePath(std::string_view language) {
  return fmt::format("resources/{}.lproj/Localizable.strings", language);
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '"':
        result += "\\\"";
        break;
      case '\\':
        result += "\\\\";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\t':
        result += "\\t";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string tableLine(std::string_view key, std::string_view text) {
  return fmt::format("\"{}\" = \"{}\";\n", escaped(key), escaped(text));
}

}  // namespace zk::tools
