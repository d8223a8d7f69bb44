#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <pugixml.hpp>

namespace zk::tools {

namespace {

using Kind = TextPiece::Kind;
using Pieces = std::vector<TextPiece>;
using Attribute = std::pair<const char*, std::string>;

pugi::xml_node addElement(pugi::xml_node parent, const char* name,
                          std::initializer_list<Attribute> attributes) {
  pugi::xml_node element = parent.append_child(name);
  for (const auto& [attribute, value] : attributes) element.append_attribute(attribute) = value.c_str();
  return element;
}

/// Adds a text node, which may be empty. An element whose neighbours are text nodes is written without line breaks around it.
void addText(pugi::xml_node element, std::string_view text) {
  element.append_child(pugi::node_pcdata).set_value(std::string(text).c_str());
}

bool isReviewed(const TranslationUnit& unit) {
  return !unit.target.empty() && unit.state == TranslationState::translated;
}

/// Adds a <source> or <target> of XLIFF 1.2.
void addContent12(pugi::xml_node element, const Pieces& pieces, const Pieces& source) {
  const std::vector<std::size_t> numbers = codeNumbers(pieces, source);
  addText(element, "");
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const bool isCode = pieces[i].kind != Kind::words;
    addText(isCode ? addElement(element, "ph", {{"id", std::to_string(numbers[i])}}) : element,
            pieces[i].text);
    addText(element, "");
  }
}

void addUnit12(pugi::xml_node body, const TranslationUnit& unit) {
  pugi::xml_node element = addElement(body, "trans-unit", {{"id", unit.key}, {"resname", unit.key}});
  if (isReviewed(unit)) element.append_attribute("approved") = "yes";
  element.append_attribute("xml:space") = "preserve";
  const Pieces source = piecesOf(unit.source);
  addContent12(element.append_child("source"), source, source);
  if (!unit.target.empty()) {
    const char* const state = isReviewed(unit) ? "translated" : "needs-review-translation";
    addContent12(addElement(element, "target", {{"state", state}}), piecesOf(unit.target), source);
  }
  // translate-toolkit's xliff2po keeps no other place of the key.
  const pugi::xml_node location = addElement(element, "context-group", {{"purpose", "location"}});
  addText(addElement(location, "context", {{"context-type", "sourcefile"}}), unit.key);
  addText(addElement(element, "note", {{"from", "developer"}, {"annotates", "source"}}), unit.notes);
  if (unit.previousSource.empty()) return;
  pugi::xml_node previous = addElement(element, "alt-trans", {{"alttranstype", "previous-version"}});
  addText(previous.append_child("source"), unit.previousSource);
  addText(previous.append_child("target"), unit.target);
}

/// Adds a <source> or <target> of XLIFF 2.0. `dataFor` returns the id of a code's text in the original data.
void addContent20(pugi::xml_node element, const Pieces& pieces, const Pieces& source,
                  const std::function<std::string(std::string_view)>& dataFor) {
  const std::vector<std::size_t> numbers = codeNumbers(pieces, source);
  addText(element, "");
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const auto& [kind, text] = pieces[i];
    const std::string id = std::to_string(numbers[i]);
    if (kind == Kind::words) addText(element, text);
    if (kind == Kind::placeholder)
      addElement(element, "ph", {{"id", id}, {"dataRef", dataFor(text)}, {"disp", std::string(text)}});
    if (kind == Kind::opening)
      element =
          addElement(element, "pc",
                     {{"id", id}, {"dataRefStart", dataFor(text)}, {"dataRefEnd", dataFor(closingOf(text))}});
    if (kind == Kind::closing) element = element.parent();
    addText(element, "");
  }
}

void addUnit20(pugi::xml_node file, const TranslationUnit& unit, std::size_t number) {
  pugi::xml_node element = addElement(
      file, "unit", {{"id", fmt::format("u{}", number)}, {"name", unit.key}, {"xml:space", "preserve"}});
  addText(addElement(element.append_child("notes"), "note", {{"category", "developer"}}),
          notesWithPrevious(unit));
  pugi::xml_node data = element.append_child("originalData");
  std::map<std::string_view, std::size_t> dataNumbers;
  const auto dataFor = [&](std::string_view text) {
    const auto [place, isNew] = dataNumbers.try_emplace(text, dataNumbers.size() + 1);
    const std::string id = fmt::format("d{}", place->second);
    if (isNew) addText(addElement(data, "data", {{"id", id}}), text);
    return id;
  };
  const Pieces source = piecesOf(unit.source);
  pugi::xml_node segment =
      addElement(element, "segment", {{"state", isReviewed(unit) ? "translated" : "initial"}});
  addContent20(segment.append_child("source"), source, source, dataFor);
  if (!unit.target.empty())
    addContent20(segment.append_child("target"), piecesOf(unit.target), source, dataFor);
  if (!data.first_child()) element.remove_child(data);
}

/// XML cannot hold control characters, except tabs and line breaks, nor two noncharacters.
void refuseControlCharacters(const Translations& translations) {
  for (const TranslationUnit& unit : translations.units) {
    const std::string text = unit.key + unit.source + unit.target + notesWithPrevious(unit);
    const bool isRefused = std::any_of(text.begin(), text.end(), [](char character) {
      return static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n';
    });
    if (!isRefused && text.find("\uFFFE") == text.npos && text.find("\uFFFF") == text.npos) continue;
    fail(tablePath(translations.language),
         fmt::format("the text of \"{}\" has a control character, which XLIFF cannot hold; "
                     "remove it, or export with --format po",
                     escaped(unit.key)));
  }
}

std::string saved(const pugi::xml_document& document) {
  std::ostringstream stream;
  document.save(stream, "  ", pugi::format_default, pugi::encoding_utf8);
  return stream.str();
}

}  // namespace

std::string toXLIFF12(const Translations& translations) {
  refuseControlCharacters(translations);
  pugi::xml_document document;
  const pugi::xml_node root =
      addElement(document, "xliff", {{"version", "1.2"}, {"xmlns", "urn:oasis:names:tc:xliff:document:1.2"}});
  pugi::xml_node file = addElement(root, "file",
                                   {{"original", tablePath(translations.language)},
                                    {"source-language", "en"},
                                    {"target-language", translations.language},
                                    {"datatype", "plaintext"}});
  const pugi::xml_node body = file.append_child("body");
  for (const TranslationUnit& unit : translations.units) addUnit12(body, unit);
  return saved(document);
}

std::string toXLIFF20(const Translations& translations) {
  refuseControlCharacters(translations);
  pugi::xml_document document;
  const pugi::xml_node root = addElement(document, "xliff",
                                         {{"version", "2.0"},
                                          {"xmlns", "urn:oasis:names:tc:xliff:document:2.0"},
                                          {"srcLang", "en"},
                                          {"trgLang", translations.language}});
  const pugi::xml_node file =
      addElement(root, "file", {{"id", "f1"}, {"original", tablePath(translations.language)}});
  std::size_t number = 0;
  for (const TranslationUnit& unit : translations.units) addUnit20(file, unit, ++number);
  return saved(document);
}

}  // namespace zk::tools
