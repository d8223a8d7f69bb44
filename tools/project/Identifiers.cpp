#include <ZKStrings/catalogue/KeyRule.h>
#include <ZKStrings/tools/project/Identifiers.h>
#include <ZKStrings/tools/support/Characters.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace zk::tools {

namespace {

/// The words that cannot be the name of an accessor: reserved words, and two names that the module's class itself
/// needs.
constexpr std::string_view kReserved[] = {
    "Text",     "ZKStrings", "alignas",  "alignof",   "and",     "and_eq",    "asm",      "auto",
    "bitand",   "bitor",     "bool",     "break",     "case",    "catch",     "char",     "class",
    "co_await", "co_return", "co_yield", "compl",     "concept", "const",     "continue", "decltype",
    "default",  "delete",    "do",       "double",    "else",    "enum",      "explicit", "export",
    "extern",   "false",     "float",    "for",       "friend",  "goto",      "if",       "inline",
    "int",      "long",      "mutable",  "namespace", "new",     "noexcept",  "not",      "not_eq",
    "nullptr",  "operator",  "or",       "or_eq",     "private", "protected", "public",   "register",
    "requires", "return",    "short",    "signed",    "sizeof",  "static",    "struct",   "switch",
    "template", "this",      "throw",    "true",      "try",     "typedef",   "typeid",   "typename",
    "union",    "unsigned",  "using",    "virtual",   "void",    "volatile",  "while",    "xor",
    "xor_eq"};

bool isReserved(std::string_view name) {
  return std::find(std::begin(kReserved), std::end(kReserved), name) != std::end(kReserved);
}

/// Whether `name` has letters, marks, digits and "_" alone, and no digit at its beginning.
bool hasSignsOfNames(std::string_view name) {
  if (name.empty() || (name.front() >= '0' && name.front() <= '9')) return false;
  for (const CodePoint next : CodePoints(name)) {
    if (next.bytes != "_" && !(next.value && isLetterMarkOrDigit(*next.value))) return false;
  }
  return true;
}

}  // namespace

bool isIdentifier(std::string_view word) {
  const auto isAscii = [](char character) { return static_cast<signed char>(character) >= 0; };
  return hasSignsOfNames(word) && std::all_of(word.begin(), word.end(), isAscii) && !isReserved(word);
}

std::string identifierFor(std::string_view name) {
  const std::string spelled = hasSignsOfNames(name) ? std::string(name) : keyForText(name);
  return isReserved(spelled) ? spelled + "_" : spelled;
}

}  // namespace zk::tools
