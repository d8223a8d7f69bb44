#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/exchange/XMLFile.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::string_view kPredefinedEntities[] = {"amp", "lt", "gt", "quot", "apos"};

std::string decoded(std::string bytes, const std::string& file) {
  std::optional<std::string> text = decodedText(std::move(bytes), UnmarkedText::isUtf8);
  if (text) return *std::move(text);
  fail(file, "the bytes are not text in UTF-8; save the file as UTF-8");
}

/// Where a reference begins in `xml` to an entity that XML does not define itself; `npos` for none. The
/// parser would take it for plain text.
std::size_t unknownEntity(std::string_view xml) {
  struct Verbatim {
    std::string_view begin;
    std::string_view end;
  };
  constexpr Verbatim kVerbatim[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}};
  for (std::size_t at = xml.find_first_of("<&"); at < xml.size(); at = xml.find_first_of("<&", at + 1)) {
    const std::string_view rest = xml.substr(at);
    if (rest[0] == '<') {
      for (const auto& [begin, end] : kVerbatim) {
        if (rest.starts_with(begin)) at = std::min(xml.find(end, at + begin.size()), xml.size());
      }
      continue;
    }
    const std::string_view name = rest.substr(1, rest.substr(0, 12).find(';') - 1);
    const bool isCharacter = name.starts_with('#') &&
                             name.find_first_not_of("0123456789abcdefABCDEFx", 1) == std::string_view::npos;
    const auto* const known = std::find(std::begin(kPredefinedEntities), std::end(kPredefinedEntities), name);
    if (!isCharacter && known == std::end(kPredefinedEntities)) return at;
  }
  return std::string_view::npos;
}

}  // namespace

XMLFile::XMLFile(std::string bytes, std::string file)
    : file_(std::move(file)), text_(decoded(std::move(bytes), file_)), positions_(text_) {
  const pugi::xml_parse_result result = document_.load_buffer(
      text_.data(), text_.size(), pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_doctype,
      pugi::encoding_utf8);
  for (const pugi::xml_node node : document_.children()) {
    if (node.type() == pugi::node_doctype) {
      fail(text_.find("<!DOCTYPE"),
           "document types and their entities are not taken; remove the DOCTYPE, or save the file anew as "
           "XLIFF");
    }
  }
  if (!result) {
    fail(static_cast<std::size_t>(result.offset),
         fmt::format("the document is no well-formed XML ({}); the file may be cut off or damaged, save it "
                     "anew",
                     lowerCased(result.description())));
  }
  if (const std::size_t entity = unknownEntity(text_); entity != std::string::npos)
    fail(entity, "\"&\" begins no entity that XML defines; write \"&amp;\" for the character itself");
}

Position XMLFile::at(pugi::xml_node element) {
  // The parser tells where the name begins, behind the "<".
  return positions_.at(static_cast<std::size_t>(element.offset_debug()) - 1);
}

void XMLFile::refuse(pugi::xml_node element, std::string message) const {
  fail(static_cast<std::size_t>(element.offset_debug()) - 1, std::move(message));
}

void XMLFile::fail(std::size_t offset, std::string message) const {
  tools::fail(file_, positionOf(text_, offset), std::move(message));
}

std::string_view localName(std::string_view name) {
  return name.substr(name.find(':') + 1);
}

pugi::xml_node childNamed(pugi::xml_node element, std::string_view name) {
  return element.find_child([&](pugi::xml_node child) { return localName(child.name()) == name; });
}

}  // namespace zk::tools
