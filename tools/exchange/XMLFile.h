#pragma once

#include <ZKStrings/tools/support/Position.h>

#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace zk::tools {

/// An XML document that someone else wrote.
class XMLFile {
 public:
  /// Reads `bytes`, in UTF-8, or in UTF-16 or UTF-32 with a byte-order mark. Throws `CommandFailed` when they
  /// are not well formed, and for a document with a document type or with entities of its own, which nothing
  /// here needs and by which a small file can grow without end.
  XMLFile(std::string bytes, std::string file);
  XMLFile(const XMLFile&) = delete;
  XMLFile& operator=(const XMLFile&) = delete;

  [[nodiscard]] pugi::xml_node root() const { return document_.document_element(); }
  /// Where `element` stands. Elements are asked for in the order of the document.
  [[nodiscard]] Position at(pugi::xml_node element);
  /// Throws `CommandFailed` for a fault at `element`.
  [[noreturn]] void refuse(pugi::xml_node element, std::string message) const;

 private:
  [[noreturn]] void fail(std::size_t offset, std::string message) const;

  const std::string file_;
  const std::string text_;
  pugi::xml_document document_;
  PositionTeller positions_;
};

/// The name of `element`, or of an attribute, without a namespace prefix.
[[nodiscard]] std::string_view localName(std::string_view name);

/// The first child element of that name, without regard to its namespace prefix; a null node for none.
[[nodiscard]] pugi::xml_node childNamed(pugi::xml_node element, std::string_view name);

}  // namespace zk::tools
