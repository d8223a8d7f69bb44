#include <ZKStrings/tools/adoption/PluralDictionary.h>
#include <ZKStrings/tools/adoption/PositionalText.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include <fmt/format.h>
#include <pugixml.hpp>

namespace zk::tools {

namespace {

/// What stands behind the key `name` in a dictionary.
pugi::xml_node memberOf(const pugi::xml_node& dictionary, std::string_view name) {
  for (const pugi::xml_node& key : dictionary.children("key")) {
    if (key.text().get() == name) return key.next_sibling();
  }
  return {};
}

/// `pieces` with all placeholders by number.
std::string withNumbers(const std::vector<FormatPiece>& pieces) {
  std::string text;
  for (const FormatPiece& piece : pieces) {
    text += piece.argument != 0 ? fmt::format("%{}$@", piece.argument) : piece.text;
  }
  return text;
}

/// The format with the form of its variable filled in.
std::string expanded(const std::vector<FormatPiece>& format, std::string_view form) {
  std::string text;
  for (const FormatPiece& piece : format) {
    text += piece.variable.empty() ? withNumbers({piece}) : withNumbers(formatPiecesOf(form, piece.argument));
  }
  return text;
}

/// Why the entry cannot be read; its forms otherwise.
struct Reading {
  std::string fault;
  std::map<std::string, std::string, std::less<>> forms = {};
};

Reading readEntry(const pugi::xml_node& entry) {
  if (std::string_view(entry.name()) == "string") return {"", {{"", entry.text().get()}}};
  const pugi::xml_node formatNode = memberOf(entry, "NSStringLocalizedFormatKey");
  if (!formatNode) return {"the entry has no format (NSStringLocalizedFormatKey)"};
  const std::vector<FormatPiece> format = formatPiecesOf(formatNode.text().get());
  const auto isVariable = [](const FormatPiece& piece) { return !piece.variable.empty(); };
  if (std::count_if(format.begin(), format.end(), isVariable) != 1)
    return {"the format has none or several variables with plural forms, and one text has one count"};
  const std::string& variable = std::find_if(format.begin(), format.end(), isVariable)->variable;
  const pugi::xml_node forms = memberOf(entry, variable);
  if (!forms) return {fmt::format("the variable \"{}\" has no forms", variable)};

  Reading reading;
  for (const char* const name : {"zero", "one", "two", "few", "many", "other"}) {
    const pugi::xml_node form = memberOf(forms, name);
    if (!form) continue;
    const std::string text = form.text().get();
    if (text.find("%#@") != text.npos) return {"a form has variables of its own"};
    reading.forms.emplace(name, expanded(format, text));
  }
  if (reading.forms.empty()) return {fmt::format("the variable \"{}\" has no forms", variable)};
  return reading;
}

}  // namespace

std::vector<ForeignEntry> readPluralDictionary(std::string_view xml, const std::string& file,
                                               Faults& faults) {
  const auto fail = [&](Position at, std::string message) {
    faults.push_back({Severity::warning, file, at.line, at.column, "", std::move(message)});
  };
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!parsed) {
    const auto offset = std::min(static_cast<std::size_t>(parsed.offset), xml.size());
    fail(positionOf(xml, offset), fmt::format("the text is not XML here ({})", parsed.description()));
    return {};
  }
  std::vector<ForeignEntry> entries;
  PositionTeller positions(xml);
  for (const pugi::xml_node& key : document.child("plist").child("dict").children("key")) {
    const Position at =
        positions.at(static_cast<std::size_t>(std::max<std::ptrdiff_t>(key.offset_debug(), 0)));
    Reading reading = readEntry(key.next_sibling());
    if (!reading.fault.empty()) {
      fail(at, fmt::format("\"{}\": {}; add it by hand", key.text().get(), reading.fault));
      continue;
    }
    ForeignEntry entry{key.text().get()};
    for (auto& [name, text] : reading.forms)
      entry.forms.emplace(name, ForeignText{std::move(text), file, at});
    entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace zk::tools
