#include <ZKStrings/platform/StringTableReader.h>
#include <ZKStrings/platform/TextEncoding.h>
#include <ZKStrings/platform/UnicodeText.h>
#include <ZKStrings/tools/Files.h>
#include <ZKStrings/tools/Table.h>

#include <algorithm>
#include <optional>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

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

TableEntry entryFrom(const StringTableReader& reader, const std::string& text, PositionTeller& positions) {
  const auto spelled = [&](const StringTableReader::Token& token) {
    return text.substr(token.begin, token.end - token.begin);
  };
  const auto plain = [](std::string token, std::vector<std::size_t>* unknown = nullptr) {
    token.resize(unescape(token.data(), token.size(), unknown));
    return token;
  };
  TableEntry entry;
  for (const auto& comment : reader.comments()) entry.comments.push_back(spelled(comment));
  std::vector<std::size_t> unknown;
  entry.key = plain(spelled(reader.key()));
  entry.keyAt = positions.at(reader.key().begin);
  entry.text = plain(spelled(reader.value()), &unknown);
  entry.textAt = positions.at(reader.value().begin);
  for (const std::size_t offset : unknown)
    entry.unknownEscapes.push_back(positions.at(reader.value().begin + offset));
  entry.lastLine = positions.at(reader.value().end).line;
  return entry;
}

/// Where the bytes stop being UTF-8.
Position firstIllFormed(std::string_view bytes) {
  std::size_t at = 0;
  while (at < bytes.size() && firstCodePoint(bytes.substr(at)).value)
    at += firstCodePoint(bytes.substr(at)).bytes.size();
  return positionOf(bytes, at);
}

}  // namespace

Table Table::read(const std::string& root, std::string_view language) {
  const std::string path = tablePath(language);
  try {
    return parse(readFile(root, path), path);
  } catch (CommandFailed& failed) {
    return {path, {}, std::move(failed.faults)};
  }
}

Table Table::parse(std::string bytes, std::string file) {
  Table table{std::move(file), {}, {}};
  const auto fail = [&](Position at, std::string message) {
    table.faults.push_back({Severity::error, table.file, at.line, at.column, "", std::move(message)});
  };
  const std::optional<std::string> text = decodedText(bytes, UnmarkedText::isUtf8);
  if (!text) {
    fail(firstIllFormed(bytes), "the bytes are not text in the file's encoding; save the file as UTF-8");
    return table;
  }
  PositionTeller positions(*text);
  StringTableReader reader(*text);
  for (;;) {
    while (reader.next()) table.entries.push_back(entryFrom(reader, *text, positions));
    if (!reader.fault()) return table;
    fail(positionOf(*text, reader.fault()->offset),
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
