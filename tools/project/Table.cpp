#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// The escape that begins at the byte `offset` of `spelled`, with the whole of its character.
std::string escapeAt(std::string_view spelled, std::size_t offset) {
  return '\\' + std::string(firstCodePoint(spelled.substr(offset + 1)).bytes);
}

/// The entry that `reader` has read. Comments before `commentsBegin` belong to the one before.
TableEntry entryFrom(const StringTableReader& reader, std::string_view text, std::size_t commentsBegin,
                     PositionFinder& positions) {
  using Token = StringTableReader::Token;
  TableEntry entry;
  const auto spelled = [&](const Token& token) { return text.substr(token.begin, token.end - token.begin); };
  const auto plain = [&](const Token& token) {
    std::string result(spelled(token));
    std::vector<std::size_t> unknown;
    result.resize(unescape(result.data(), result.size(), &unknown));
    for (const std::size_t offset : unknown) {
      entry.unknownEscapes.push_back({positions.at(token.begin + offset), escapeAt(spelled(token), offset)});
    }
    return result;
  };
  PositionFinder commentPositions = positions;  // some comments are within the entry
  for (const Token& comment : reader.comments()) {
    if (comment.begin < commentsBegin) continue;
    const std::size_t closingMark = text[comment.begin - 1] == '*' ? 2 : 0;
    entry.comments.push_back({std::string(spelled(comment)),
                              {comment.begin - 2, comment.end + closingMark},
                              commentPositions.at(comment.begin - 2)});
  }
  const Token& value = reader.value();
  const auto withQuotes = [&](const Token& token) -> TableEntry::Span {
    const std::size_t quote = token.begin > 0 && text[token.begin - 1] == '"' ? 1 : 0;
    return {token.begin - quote, token.end + quote};
  };
  entry.span = {reader.entry().begin, reader.entry().end};
  entry.keySpan = withQuotes(reader.key());
  entry.spelledSpan = withQuotes(value);
  entry.keyAt = positions.at(reader.key().begin);
  entry.key = plain(reader.key());
  entry.textAt = positions.at(value.begin);
  entry.text = plain(value);
  entry.spelled = spelled(value);
  entry.lastLine = positions.at(value.end).line;
  return entry;
}

/// The first place on each line where the bytes are not UTF-8.
std::vector<Position> illFormedPlaces(std::string_view bytes) {
  std::vector<Position> places;
  PositionFinder positions(bytes);
  std::size_t offset = 0;
  for (const CodePoint next : CodePoints(bytes)) {
    const Position at = positions.at(offset);
    offset += next.bytes.size();
    if (!next.value && (places.empty() || places.back().line != at.line)) places.push_back(at);
  }
  return places;
}

/// Returns the size in bytes of the text that is spelled as `spelled`.
std::size_t textSize(std::string_view spelled) {
  std::string text(spelled);
  return unescape(text.data(), text.size());
}

/// Returns where the next escape after `begin` begins, or the end.
std::size_t nextEscape(std::string_view spelled, std::size_t begin) {
  const bool isEscape = spelled.substr(begin).starts_with('\\');
  return std::min(spelled.find('\\', begin + (isEscape ? 2 : 0)), spelled.size());
}

}  // namespace

Table Table::read(const std::string& root, std::string_view language) {
  const std::string path = tablePath(language);
  try {
    return parse(readFile(root, path), path);
  } catch (const CommandFailed&) {
    return {path,
            {},
            {{Severity::error, path, 1, 1, kMissing,
              "the language has no readable table; create one with zkstrings template"}},
            {}};
  }
}

Table Table::readWellFormed(const std::string& root, std::string_view language) {
  Table table = read(root, language);
  if (!table.diagnostics.empty()) throw CommandFailed{std::move(table.diagnostics)};
  return table;
}

Table Table::parse(std::string bytes, std::string file) {
  Table table{std::move(file), {}, {}, {}};
  const auto fail = [&](Position at, const char* rule, std::string message) {
    table.diagnostics.push_back({Severity::error, table.file, at.line, at.column, rule, std::move(message)});
  };
  std::optional<std::string> text = decodedText(bytes);
  if (!text) {
    if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
    std::vector<Position> places = illFormedPlaces(bytes);
    if (places.empty()) places.push_back({1, 1});  // UTF-16 or UTF-32 without its last bytes
    for (const Position at : places)
      fail(at, kEncoding, "the bytes here are not UTF-8; save the file as UTF-8");
    text = std::move(bytes);  // to report other errors, too
  }
  PositionFinder positions(*text);
  StringTableReader reader(*text);
  for (;;) {
    while (reader.next()) {
      const std::size_t commentsBegin = table.entries.empty() ? 0 : endOfLine(*text, table.entries.back());
      table.entries.push_back(entryFrom(reader, *text, commentsBegin, positions));
      table.places.insert_or_assign(table.entries.back().key, table.entries.size() - 1);
    }
    const auto& error = reader.error();
    if (!error) break;
    fail(positions.at(error->offset), kSyntax,
         fmt::format("expected {}; write \"key\" = \"text\";", error->expected));
    reader.recover();
  }
  if (table.diagnostics.empty()) return table;
  // The markers cause many other errors.
  Diagnostics conflicts = mergeConflictsIn(*text, table.file);
  if (conflicts.empty()) return table;
  for (Diagnostic& conflict : conflicts) conflict.rule = kSyntax;
  return {std::move(table.file), {}, std::move(conflicts), {}};
}

const TableEntry* Table::find(std::string_view key) const {
  const auto place = places.find(key);
  return place == places.end() ? nullptr : &entries[place->second];
}

const TableEntry* Table::entryAt(Position position) const {
  const auto next = std::partition_point(entries.begin(), entries.end(), [&](const TableEntry& entry) {
    return std::tie(entry.keyAt.line, entry.keyAt.column) <= std::tie(position.line, position.column);
  });
  if (next != entries.begin() && std::prev(next)->lastLine >= position.line) return &*std::prev(next);
  return next == entries.end() ? nullptr : &*next;
}

TextPlaces::TextPlaces(const TableEntry& entry)
    : spelled_(entry.spelled), positions_(spelled_, entry.textAt) {
}

void TextPlaces::readOn() {
  const std::size_t begin = piece_.end;
  const std::size_t end = nextEscape(spelled_, begin);
  const std::size_t endOfTwo = nextEscape(spelled_, end);
  const std::size_t size = textSize(spelled_.substr(begin, end - begin));
  const std::size_t sizeOfTwo = textSize(spelled_.substr(begin, endOfTwo - begin));
  // Two escapes that together spell fewer bytes than each by itself are one character, a surrogate pair.
  const bool isPair = sizeOfTwo < size + textSize(spelled_.substr(end, endOfTwo - end));
  piece_ = {begin, isPair ? endOfTwo : end};
  text_ = {text_.end, text_.end + (isPair ? sizeOfTwo : size)};
}

Position TextPlaces::at(std::size_t offset) {
  while (text_.end <= offset && piece_.end < spelled_.size()) readOn();
  // Only an escape has another size than the character that it spells, and it is at the beginning.
  const std::size_t bytesAfter = text_.end - std::min(offset, text_.end);
  return positions_.at(offset <= text_.begin ? piece_.begin : piece_.end - bytesAfter);
}

std::size_t endOfLine(std::string_view text, const TableEntry& entry) {
  for (std::size_t at = entry.span.end;;) {
    at = std::min(text.find_first_not_of(" \t\r", at), text.size());
    const std::string_view rest = text.substr(at);
    if (rest.empty()) return at;
    if (rest.starts_with('\n')) return at + 1;
    if (rest.starts_with("//")) {
      at = std::min(text.find('\n', at), text.size());
    } else if (rest.starts_with("/*")) {
      at = std::min(text.find("*/", at + 2), text.size() - 2) + 2;
    } else {
      return entry.span.end;
    }
  }
}

std::string tablePath(std::string_view language) {
  return fmt::format("resources/{}.lproj/Localizable.strings", language);
}

std::string escaped(std::string_view text) {
  constexpr std::string_view kSpecial = "\"\\\n\t";
  constexpr std::string_view kLetters = "\"\\nt";
  std::string result;
  for (const char character : text) {
    const std::size_t special = kSpecial.find(character);
    if (special != kSpecial.npos) result += '\\';
    result += special == kSpecial.npos ? character : kLetters[special];
  }
  return result;
}

std::string literal(std::string_view text) {
  std::string result;
  for (const char character : escaped(text)) {
    const auto byte = static_cast<unsigned char>(character);
    result += byte < 0x20 || byte == 0x7F ? fmt::format("\\{:03o}", byte) : std::string(1, character);
  }
  return result;
}

std::string tableLine(std::string_view key, std::string_view text) {
  return fmt::format("\"{}\" = \"{}\";\n", escaped(key), escaped(text));
}

}  // namespace zk::tools
