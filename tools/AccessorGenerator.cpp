#include <ZKStrings/tools/AccessorGenerator.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include <fmt/format.h>

namespace zk::tools {

namespace {

/// What cannot be the name of an accessor: the reserved words, and the two names that the class itself needs.
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

constexpr std::string_view kCounts[] = {"0", "1", "2", "3 to 5", "6 and more"};

constexpr const char* kNotice =
    "// Generated from catalogue/entries.json by `zkstrings generate`. Do not edit: change the catalogue "
    "instead.\n"
    "// clang-format off\n";

constexpr const char* kHeaderBegin = R"(#pragma once

{}
#include <cstdint>
#include <string>

#include <ZKStrings/engine/Text.h>
#include <ZKStrings/platform/Export.h>

namespace zk {{

/// The catalogue: one accessor for each text of the app, named as the entry's key, giving the text in the user's
/// language. Text arguments (a literal, a `std::string`, a `std::string_view`) fill the placeholders of the same name;
/// `count`, the last argument of counted entries, chooses the plural form and is filled in nowhere. Each comment shows
/// the English text.
///
///     std::string title = zk::ZKStrings::badgeCount_Badges("4", 4);
///
/// Any thread may call any accessor, once `zk::Current::language` has been assigned.
struct ZK_EXPORT ZKStrings {{
  ZKStrings() = delete;
)";

constexpr const char* kSourceBegin = R"({}
#include <ZKStrings/catalogue/ZKStrings.h>

#include <ZKStrings/catalogue/EntryText.h>

namespace zk {{
)";

/// `name` as C++ takes it: a reserved word gets an underscore.
std::string identifier(std::string_view name) {
  const bool isReserved = std::find(std::begin(kReserved), std::end(kReserved), name) != std::end(kReserved);
  return std::string(name) + (isReserved ? "_" : "");
}

std::string parametersOf(const Entry& entry) {
  std::vector<std::string> parameters;
  for (const std::string_view name : placeholderNames(entry.text)) {
    parameters.push_back("Text " + identifier(name));
  }
  if (entry.plural) parameters.push_back("std::int64_t count");
  return fmt::format("{}", fmt::join(parameters, ", "));
}

/// What follows the key and the English text in the call of `entryText`.
std::string furtherArgumentsOf(const Entry& entry) {
  const std::string count = entry.plural ? ", count" : "";
  std::vector<std::string> pairs;
  for (const std::string_view name : placeholderNames(entry.text)) {
    pairs.push_back(fmt::format("{{\"{}\", {}}}", name, identifier(name)));
  }
  if (pairs.empty()) return count;
  return fmt::format("{}, {{{}}}", count, fmt::join(pairs, ", "));
}

std::string commentOf(const Entry& entry, const Table& base) {
  std::string comment = fmt::format("  /// \"{}\"\n", escaped(entry.text));
  if (!entry.plural) return comment;
  for (std::size_t form = 0; form < std::size(kPluralSuffixes); ++form) {
    const TableEntry* const text = base.find(std::string(entry.key).append(kPluralSuffixes[form]));
    if (text) comment += fmt::format("  /// - {}: \"{}\"\n", kCounts[form], escaped(text->text));
  }
  return comment;
}

}  // namespace

Accessors generateAccessors(const Catalogue& catalogue, const Table& base) {
  Accessors accessors{fmt::format(fmt::runtime(kHeaderBegin), kNotice),
                      fmt::format(fmt::runtime(kSourceBegin), kNotice)};
  for (const Entry& entry : catalogue.entries()) {
    const std::string name = identifier(entry.key);
    const std::string parameters = parametersOf(entry);
    accessors.header += fmt::format("\n{}  [[nodiscard]] static std::string {}({});\n",
                                    commentOf(entry, base), name, parameters);
    accessors.source +=
        fmt::format("\nstd::string ZKStrings::{}({}) {{\n  return entryText(\"{}\", \"{}\"{});\n}}\n", name,
                    parameters, escaped(entry.key), escaped(entry.text), furtherArgumentsOf(entry));
  }
  accessors.header += "};\n\n}  // namespace zk\n";
  accessors.source += "\n}  // namespace zk\n";
  return accessors;
}

}  // namespace zk::tools
