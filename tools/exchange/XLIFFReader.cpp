#include <ZKStrings/platform/text/TextSearch.h>
#include <ZKStrings/tools/exchange/XLIFF.h>
#include <ZKStrings/tools/exchange/XMLFile.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::size_t kDeepestCode = 32;
constexpr const char* kGettextHeader = "x-gettext-domain-header";

/// Elements around words, or within them, that stand for no text themselves.
constexpr std::string_view kAnnotations[] = {"g", "mrk", "sm", "em", "sub"};

bool isAnnotation(std::string_view name) {
  return std::find(std::begin(kAnnotations), std::end(kAnnotations), name) != std::end(kAnnotations);
}

/// The texts that codes stand for, by what refers to them.
struct Codes {
  std::map<std::string, std::string, std::less<>> data;  ///< of XLIFF 2.0's original data
  std::map<std::string, std::string, std::less<>> byId;  ///< of those that were read

  [[nodiscard]] std::string dataFor(pugi::xml_attribute reference) const {
    const auto found = data.find(std::string_view(reference.value()));
    return found == data.end() ? "" : found->second;
  }
};

/// The text of the <context> of that type below `unit`; empty for none.
std::string contextOf(pugi::xml_node unit, std::string_view type) {
  for (const pugi::xml_node group : unit.children()) {
    for (const pugi::xml_node context : group.children()) {
      if (context.attribute("context-type").value() == type) return context.child_value();
    }
  }
  return "";
}

/// The key of a unit of XLIFF 1.2; empty when only its text tells it. Programs keep the name and the id; those
/// that come by way of PO keep the msgctxt or the reference instead, and number the units.
std::string keyOf(pugi::xml_node unit) {
  const std::string id = unit.attribute("id").value();
  if (const std::string name = unit.attribute("resname").value(); !name.empty()) return name;
  if (std::string context = contextOf(unit, "x-gettext-msgctxt"); !context.empty()) return context;
  if (id.find_first_not_of("0123456789") != std::string::npos) return id;
  return contextOf(unit, "sourcefile");
}

/// Whether the translation is no more than a beginning. A program that tells nothing means that it is done.
bool needsReview12(pugi::xml_node unit, pugi::xml_node target) {
  const std::string_view state = target.attribute("state").value();
  if (state.empty()) return std::string_view(unit.attribute("approved").value()) == "no";
  return state == "new" || state.starts_with("needs-");
}

class Reader {
 public:
  Reader(std::string bytes, const std::string& file) : document_(std::move(bytes), file) {}

  Translations read() && {
    const pugi::xml_node root = document_.root();
    const std::string_view version = root.attribute("version").value();
    if (localName(root.name()) != "xliff" || !(version.starts_with("1.") || version.starts_with("2.")))
      document_.refuse(root, "the document is no XLIFF 1.2 or 2.0; export it as one of them");
    setLanguage(root, root.attribute("trgLang").value());
    Walker walker(*this);
    pugi::xml_node(root).traverse(walker);
    return std::move(translations_);
  }

 private:
  /// Calls the reader for every element, without a call within another.
  struct Walker : pugi::xml_tree_walker {
    explicit Walker(Reader& taker) : reader(taker) {}
    bool for_each(pugi::xml_node& node) override {
      const std::string_view name = localName(node.name());
      if (name == "file") reader.setLanguage(node, node.attribute("target-language").value());
      if (name == "trans-unit") reader.readUnit12(node);
      if (name == "unit") reader.readUnit20(node);
      return true;
    }
    Reader& reader;
  };

  void setLanguage(pugi::xml_node element, std::string_view language) {
    std::string& known = translations_.language;
    if (language.empty() || known == language) return;
    if (!known.empty()) {
      document_.refuse(element, fmt::format("the file holds translations into \"{}\" and into \"{}\"; import "
                                            "a file for each language",
                                            known, language));
    }
    known = language;
  }

  void readUnit12(pugi::xml_node element) {
    if (std::string_view(element.attribute("restype").value()) == kGettextHeader) return;
    TranslationUnit unit;
    unit.at = document_.at(element);
    unit.key = keyOf(element);
    Codes codes;
    unit.source = textOf(childNamed(element, "source"), codes, 0);
    if (unit.key.empty()) unit.key = unit.source;
    const pugi::xml_node target = childNamed(element, "target");
    unit.target = textOf(target, codes, 0);
    if (needsReview12(element, target)) unit.state = TranslationState::needsReview;
    add(std::move(unit));
  }

  void readUnit20(pugi::xml_node element) {
    TranslationUnit unit;
    unit.at = document_.at(element);
    const pugi::xml_attribute name = element.attribute("name");
    unit.key = (name ? name : element.attribute("id")).value();
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

  /// Programs write the English text as a target where nobody has translated it yet.
  void add(TranslationUnit unit) {
    if (unit.state == TranslationState::needsReview && unit.target == unit.source) unit.target.clear();
    translations_.units.push_back(std::move(unit));
  }

  // NOLINTNEXTLINE(misc-no-recursion): codes lie in each other, up to a depth
  std::string textOf(pugi::xml_node element, Codes& codes, std::size_t depth) {
    if (depth > kDeepestCode) document_.refuse(element, "too many elements lie in each other");
    std::string text;
    for (const pugi::xml_node child : element.children()) {
      text += child.type() == pugi::node_element ? textOfCode(child, codes, depth + 1) : child.value();
    }
    return text;
  }

  // NOLINTNEXTLINE(misc-no-recursion)
  std::string textOfCode(pugi::xml_node code, Codes& codes, std::size_t depth) {
    std::string text = codes.dataFor(code.attribute("dataRef")) +
                       codes.dataFor(code.attribute("dataRefStart")) + textOf(code, codes, depth) +
                       codes.dataFor(code.attribute("dataRefEnd"));
    if (isAnnotation(localName(code.name()))) return text;
    if (std::string_view(code.attribute("ctype").value()).starts_with("x-ch-")) return unescapedByQt(text);
    const std::string id = code.attribute("id").value();
    if (text.empty()) text = codes.byId[id];
    if (text.empty()) text = code.attribute("equiv-text").value();
    if (text.empty()) {
      document_.refuse(code, fmt::format("the element <{} id=\"{}\"> stands for nothing that the English "
                                         "text has; copy the element from there",
                                         code.name(), id));
    }
    codes.byId[id] = text;
    return text;
  }

  /// What Qt's programs write for a control character.
  static std::string unescapedByQt(std::string text) {
    for (const auto& [escape, character] :
         {std::pair("\\t", "\t"), std::pair("\\n", "\n"), std::pair("\\r", "\r")})
      replaceOccurrences(text, escape, character);
    return text;
  }

  XMLFile document_;
  Translations translations_;
};

}  // namespace

Translations fromXLIFF(std::string bytes, const std::string& file) {
  return Reader(std::move(bytes), file).read();
}

}  // namespace zk::tools
