#include <ZKStrings/platform/formats/StringTableReader.h>
#include <ZKStrings/tools/exchange/ExchangeFormat.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>
#include <pugixml.hpp>

namespace zk::tools {

namespace {

constexpr std::size_t kDeepestCode = 32;
/// How much longer than the file all texts of its inline codes may be together.
constexpr std::size_t kMostExpansion = 1U << 16U;

/// `name`, of an element or attribute, without its namespace prefix.
std::string_view localName(std::string_view name) {
  return name.substr(name.find(':') + 1);
}

/// The first child element with that local name; a null node if there is none.
pugi::xml_node childNamed(pugi::xml_node element, std::string_view name) {
  return element.find_child([&](pugi::xml_node child) { return localName(child.name()) == name; });
}

/// The offset of the first reference in the well-formed `xml` to an entity that XML does not define; `npos` if there is none.
std::size_t unknownEntity(std::string_view xml) {
  constexpr std::string_view kKnown[] = {"&#", "&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
  for (std::size_t at = xml.find_first_of("<&"); at != xml.npos; at = xml.find_first_of("<&", at + 1)) {
    const std::string_view rest = xml.substr(at);
    // Within quotes, these begin nothing and may have no end.
    if (rest.starts_with("<!--")) at = std::min(xml.find("-->", at), xml.size());
    if (rest.starts_with("<![CDATA[")) at = std::min(xml.find("]]>", at), xml.size());
    const auto isHere = [&](std::string_view reference) { return rest.starts_with(reference); };
    if (rest[0] == '&' && std::none_of(std::begin(kKnown), std::end(kKnown), isHere)) return at;
  }
  return xml.npos;
}

/// The text of the <context> with that type in `unit`; empty if there is none.
std::string contextOf(pugi::xml_node unit, std::string_view type) {
  for (const pugi::xml_node group : unit.children()) {
    for (const pugi::xml_node context : group.children()) {
      if (context.attribute("context-type").value() == type) return context.child_value();
    }
  }
  return "";
}

/// The key of a unit of XLIFF 1.2; empty if only the unit's text identifies it. Programs keep the name and the id.
/// After a conversion from PO, units have numbers, and the msgctxt or the reference is the key.
std::string keyOf(pugi::xml_node unit) {
  const std::string id = unit.attribute("id").value();
  if (const std::string name = unit.attribute("resname").value(); !name.empty()) return name;
  if (std::string context = contextOf(unit, "x-gettext-msgctxt"); !context.empty()) return context;
  if (id.find_first_not_of("0123456789") != std::string::npos) return id;
  return contextOf(unit, "sourcefile");
}

/// The target of a unit of XLIFF 1.2. Qt's programs write it into the <alt-trans> of the previous English text. Other
/// programs' proposals are there as well, but neither approved nor with a state.
pugi::xml_node targetOf(pugi::xml_node unit) {
  const pugi::xml_node target = childNamed(unit, "target");
  const pugi::xml_node other = childNamed(childNamed(unit, "alt-trans"), "target");
  const bool isProposal =
      !other.attribute("state") && std::string_view(unit.attribute("approved").value()) != "yes";
  return target || isProposal ? target : other;
}

/// Whether a translation in XLIFF 1.2 is unfinished. Without a state it is finished.
bool needsReview12(pugi::xml_node unit, pugi::xml_node target) {
  const std::string_view state = target.attribute("state").value();
  if (state.empty()) return std::string_view(unit.attribute("approved").value()) == "no";
  return state == "new" || state.starts_with("needs-");
}

/// The notes of a unit: its children in XLIFF 1.2, the children of its <notes> in 2.x.
std::string notesOf(pugi::xml_node unit) {
  std::string notes;
  for (const pugi::xml_node parent : {unit, childNamed(unit, "notes")}) {
    for (const pugi::xml_node child : parent.children()) {
      if (localName(child.name()) == "note") notes.append(child.child_value()) += '\n';
    }
  }
  return notes;
}

/// Reads a document such as
///
///     <xliff version="1.2"><file target-language="de"><body>
///       <trans-unit id="Kick_name" resname="Kick_name" approved="yes">
///         <source>Kick <ph id="1">%{name}</ph>?</source>
///         <target state="translated"><ph id="1"/> rauswerfen?</target>
///       </trans-unit>
///     </body></file></xliff>
///
/// or such as
///
///     <xliff version="2.0" trgLang="de"><file id="f1">
///       <unit id="u1" name="Kick_name">
///         <originalData><data id="d1">%{name}</data></originalData>
///         <segment state="translated">
///           <source>Kick <ph id="1" dataRef="d1"/>?</source>
///           <target><ph id="1" dataRef="d1"/> rauswerfen?</target>
///         </segment>
///       </unit>
///     </file></xliff>
///
/// An inline code has the text of its content, its original data, or the earlier code with its id.
class XLIFFReader {
 public:
  XLIFFReader(const std::string& text, const std::string& file)
      : file_(file), text_(text), positions_(text), expansionLeft_(text.size() + kMostExpansion) {
    const pugi::xml_parse_result result = document_.load_buffer(
        text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata, pugi::encoding_utf8);
    if (!result)
      refuse(static_cast<std::size_t>(result.offset),
             fmt::format("the document is not well-formed XML ({}); the file may be damaged, save it again",
                         lowerCased(result.description())));
    // The parser leaves them as they are.
    if (const std::size_t entity = unknownEntity(text); entity != std::string::npos)
      refuse(entity, "unknown XML entity; write \"&amp;\" for the character \"&\"");
  }

  Translations read() {
    pugi::xml_node root = document_.document_element();
    const std::string_view version = root.attribute("version").value();
    if (localName(root.name()) != "xliff" || !(version.starts_with("1.") || version.starts_with("2.")))
      refuse(root, "the document is not XLIFF 1.2 or 2.0; export it as one of them");
    setLanguage(root, "trgLang");
    // This visits all elements without recursion.
    root.find_node([&](pugi::xml_node node) {
      readElement(node);
      return false;
    });
    return std::move(translations_);
  }

 private:
  /// The texts of a unit's codes, by id.
  using Texts = std::map<std::string, std::string, std::less<>>;
  struct Codes {
    Texts data;  ///< the original data, by id
    Texts byId;  ///< the codes that were read
  };

  void readElement(pugi::xml_node element) {
    const std::string_view name = localName(element.name());
    if (name == "file") setLanguage(element, "target-language");
    if (name == "trans-unit") readUnit12(element);
    if (name == "unit") readUnit20(element);
  }

  [[noreturn]] void refuse(std::size_t offset, std::string message) const {
    fail(file_, positionOf(text_, offset), std::move(message));
  }
  [[noreturn]] void refuse(pugi::xml_node element, std::string message) const {
    refuse(offsetOf(element), std::move(message));
  }

  static std::size_t offsetOf(pugi::xml_node element) {
    // The parser reports where the name starts, after the "<".
    return static_cast<std::size_t>(element.offset_debug()) - 1;
  }

  void setLanguage(pugi::xml_node element, const char* attribute) {
    const std::string language = element.attribute(attribute).value();
    std::string& known = translations_.language;
    if (language.empty() || known == language) return;
    if (!known.empty())
      refuse(element,
             fmt::format("the file has translations into \"{}\" and \"{}\"; import a file for each language",
                         known, language));
    known = language;
  }

  TranslationUnit unitAt(pugi::xml_node element, std::string key) {
    TranslationUnit unit{std::move(key), "", ""};
    unit.notes = notesOf(element);
    unit.at = positions_.at(offsetOf(element));
    return unit;
  }

  void readUnit12(pugi::xml_node element) {
    // Made from the header of a PO file.
    if (std::string_view(element.attribute("restype").value()) == "x-gettext-domain-header") return;
    TranslationUnit unit = unitAt(element, keyOf(element));
    Codes codes;
    unit.source = textOf(childNamed(element, "source"), codes, 0);
    if (unit.key.empty()) unit.key = unit.source;
    const pugi::xml_node target = targetOf(element);
    unit.target = textOf(target, codes, 0);
    if (needsReview12(element, target)) unit.state = TranslationState::needsReview;
    add(std::move(unit));
  }

  void readUnit20(pugi::xml_node element) {
    const pugi::xml_attribute name = element.attribute("name");
    TranslationUnit unit = unitAt(element, (name ? name : element.attribute("id")).value());
    Codes codes;
    for (const pugi::xml_node data : childNamed(element, "originalData").children())
      codes.data.emplace(data.attribute("id").value(), textOf(data, codes, 0));
    bool isComplete = true;
    for (const pugi::xml_node part : element.children()) {
      const bool isSegment = localName(part.name()) == "segment";
      if (!isSegment && localName(part.name()) != "ignorable") continue;
      const std::string source = textOf(childNamed(part, "source"), codes, 0);
      const std::string target = textOf(childNamed(part, "target"), codes, 0);
      unit.source += source;
      unit.target += isSegment || !target.empty() ? target : source;
      isComplete = isComplete && !(isSegment && target.empty());
      if (isSegment && std::string_view(part.attribute("state").value()) == "initial")
        unit.state = TranslationState::needsReview;
    }
    if (!isComplete) unit.target.clear();
    add(std::move(unit));
  }

  void add(TranslationUnit unit) {
    // Programs write the English text as the target of a text that is not translated yet.
    if (unit.state == TranslationState::needsReview && unit.target == unit.source) unit.target.clear();
    translations_.units.push_back(std::move(unit));
  }

  // NOLINTNEXTLINE(misc-no-recursion): codes may contain codes, up to a depth
  std::string textOf(pugi::xml_node element, Codes& codes, std::size_t depth) {
    if (depth > kDeepestCode) refuse(element, "nested too deeply; export the texts again");
    std::string text;
    for (const pugi::xml_node child : element.children())
      text += child.type() == pugi::node_element ? textOfCode(child, codes, depth + 1) : child.value();
    return text;
  }

  // NOLINTNEXTLINE(misc-no-recursion)
  std::string textOfCode(pugi::xml_node code, Codes& codes, std::size_t depth) {
    // Elements around or within words that have no text of their own.
    constexpr std::string_view kAnnotations[] = {"g", "mrk", "sm", "em", "sub"};
    const auto dataFor = [&](const char* reference) {
      return repeated(codes.data, code.attribute(reference).value(), code);
    };
    std::string text =
        dataFor("dataRef") + dataFor("dataRefStart") + textOf(code, codes, depth) + dataFor("dataRefEnd");
    const std::string_view name = localName(code.name());
    if (std::find(std::begin(kAnnotations), std::end(kAnnotations), name) != std::end(kAnnotations))
      return text;
    // Qt's programs write control characters as escapes.
    if (std::string_view(code.attribute("ctype").value()).starts_with("x-ch-")) {
      text.resize(unescape(text.data(), text.size()));
      return text;
    }
    const std::string id = code.attribute("id").value();
    if (text.empty()) text = repeated(codes.byId, id, code);
    if (text.empty()) text = code.attribute("equiv-text").value();
    if (text.empty())
      refuse(code,
             fmt::format("<{} id=\"{}\"> does not match any element of the English text; copy it from there",
                         code.name(), id));
    codes.byId[id] = limited(text, code);
    return text;
  }

  /// The text that `texts` has for `id`; empty if it has none.
  std::string repeated(const Texts& texts, std::string_view id, pugi::xml_node code) {
    const auto found = texts.find(id);
    return found == texts.end() ? "" : limited(found->second, code);
  }

  /// Returns `text`. Codes that repeat each other can make a small file's texts very long, so the sum is limited.
  std::string limited(std::string_view text, pugi::xml_node code) {
    if (text.size() > expansionLeft_)
      refuse(code, "the inline codes make the texts too long; export the texts again");
    expansionLeft_ -= text.size();
    return std::string(text);
  }

  const std::string& file_;
  const std::string& text_;
  pugi::xml_document document_;
  PositionFinder positions_;
  std::size_t expansionLeft_;
  Translations translations_;
};

}  // namespace

Translations fromXLIFF(const std::string& text, const std::string& file) {
  return XLIFFReader(text, file).read();
}

}  // namespace zk::tools
