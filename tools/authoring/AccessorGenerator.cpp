#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/project/Table.h>
#include <ZKStrings/tools/texts/Placeholders.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace {

std::string notice() {
  return fmt::format("{} Do not edit: change the catalogue instead.\n// clang-format off\n",
                     kGeneratedNotice);
}

constexpr const char* kHeaderBegin = R"(#pragma once

{notice}
#include <cstdint>
#include <string>

#include <ZKStrings/engine/Text.h>
#include <ZKStrings/platform/Export.h>
{opening}
/// The catalogue. Each text of the app has one accessor, named after its key, which returns the text in the user's
/// language. Text arguments (a literal, a `std::string`, a `std::string_view`) fill in the placeholders of the same
/// name. `count`, the last argument of counted entries, selects the plural form and is not filled in anywhere. The
/// comment of each accessor shows the English text.
///
{example}/// Thread-safe.
/// Requires: `zk::Current::language` has been assigned.
struct {export} {name} {{
  {name}() = delete;
)";

constexpr const char* kModuleExample =
    R"(///     std::string title = zk::ZKStrings::badgeCount_Badges("4", 4);
///
)";

constexpr const char* kModuleSourceBegin = R"({notice}
#include <ZKStrings/catalogue/{name}.h>

#include <ZKStrings/engine/EntryText.h>
{opening})";

constexpr const char* kSourceBegin = R"({notice}
#include "{name}.h"

#include <optional>
#include <system_error>

#include <ZKStrings/engine/StringLookup.h>
#include <ZKStrings/platform/Bundle.h>

#ifndef ZK_CATALOGUE_FOLDER  // zk_add_catalogue defines it, so two products never share a folder
#define ZK_CATALOGUE_FOLDER "{name}"
#endif

namespace {{

/// The tables in share/ZK_CATALOGUE_FOLDER, in the directory of the file that contains this code or at most two levels
/// above it. Null while they temporarily cannot be opened.
struct {name}Resources {{
  static const zk::Bundle* bundle() {{
    try {{
      static const zk::Bundle& found = zk::Bundle::bundleForClass(typeid({name}Resources), ZK_CATALOGUE_FOLDER);
      return &found;
    }} catch (const std::system_error&) {{
      return nullptr;
    }}
  }}
}};

}}  // namespace
{opening})";

std::string begin(const char* format, const CatalogueName& catalogue) {
  const std::string opening =
      catalogue.nameSpace.empty() ? "" : fmt::format("\nnamespace {} {{\n", catalogue.nameSpace);
  return fmt::format(fmt::runtime(format), fmt::arg("notice", notice()), fmt::arg("name", catalogue.name),
                     fmt::arg("export", catalogue.isModule() ? "ZK_EXPORT" : "ZK_EXPORT_ACCESSORS"),
                     fmt::arg("opening", opening),
                     fmt::arg("example", catalogue.isModule() ? kModuleExample : ""));
}

std::string end(const CatalogueName& catalogue) {
  return catalogue.nameSpace.empty() ? "" : fmt::format("\n}}  // namespace {}\n", catalogue.nameSpace);
}

std::string parametersOf(const Entry& entry, const CatalogueName& catalogue) {
  std::vector<std::string> parameters;
  for (const std::string_view name : placeholderNames(entry.text)) {
    parameters.push_back((catalogue.isModule() ? "Text " : "::zk::Text ") + identifierFor(name));
  }
  if (entry.plural) parameters.push_back("std::int64_t count");
  return fmt::format("{}", fmt::join(parameters, ", "));
}

std::string substitutionsOf(const Entry& entry) {
  std::vector<std::string> pairs;
  for (const std::string_view name : placeholderNames(entry.text)) {
    pairs.push_back(fmt::format("{{\"{}\", {}}}", name, identifierFor(name)));
  }
  return fmt::format("{{{}}}", fmt::join(pairs, ", "));
}

/// The call that looks the entry's text up. The module's own is shorter, as there are so many.
std::string lookupOf(const Entry& entry, const CatalogueName& catalogue) {
  const std::string texts = fmt::format("\"{}\", \"{}\"", literal(entry.key), literal(entry.text));
  const std::string substitutions = substitutionsOf(entry);
  if (!catalogue.isModule()) {
    return fmt::format("::zk::localizedString({}Resources::bundle(), {}, {}, {})", catalogue.name, texts,
                       entry.plural ? "count" : "std::nullopt", substitutions);
  }
  return fmt::format("entryText({}{}{})", texts, entry.plural ? ", count" : "",
                     substitutions == "{}" ? "" : ", " + substitutions);
}

std::string commentOf(const Entry& entry) {
  std::string comment = fmt::format("  /// \"{}\"\n", literal(entry.text));
  if (const std::string context = entry.context(); !context.empty()) comment += "  /// " + context + "\n";
  for (std::size_t i = 0; entry.plural && i < entry.forms.size(); ++i)
    comment += fmt::format("  /// - {}: \"{}\"\n", kPluralForms[i].counts,
                           literal(entry.forms[i].value_or(entry.text)));
  return comment;
}

}  // namespace

std::string accessorOf(const Entry& entry, const CatalogueName& catalogue) {
  const std::string name = identifierFor(entry.key);
  return name == catalogue.name ? name + "_" : name;
}

std::vector<FileChange> generateAccessors(const Catalogue& catalogue) {
  const CatalogueName& name = catalogue.settings().name;
  std::string header = begin(kHeaderBegin, name);
  std::string source = begin(name.isModule() ? kModuleSourceBegin : kSourceBegin, name);
  for (const Entry& entry : catalogue.entries()) {
    const std::string accessor = accessorOf(entry, name);
    const std::string parameters = parametersOf(entry, name);
    header += fmt::format("\n{}  [[nodiscard]] static std::string {}({});\n", commentOf(entry), accessor,
                          parameters);
    source += fmt::format("\nstd::string {}::{}({}) {{\n  return {};\n}}\n", name.name, accessor, parameters,
                          lookupOf(entry, name));
  }
  header += "};\n" + end(name);
  source += end(name);
  return {{name.headerFile(), std::move(header)}, {name.sourceFile(), std::move(source)}};
}

std::string accessorCall(const Entry& entry, const CatalogueName& name) {
  std::vector<std::string> arguments;
  for (const std::string_view placeholder : placeholderNames(entry.text))
    arguments.push_back(identifierFor(placeholder));
  if (entry.plural) arguments.emplace_back("count");
  return fmt::format("{}{}{}::{}({})", name.nameSpace, name.nameSpace.empty() ? "" : "::", name.name,
                     accessorOf(entry, name), fmt::join(arguments, ", "));
}

}  // namespace zk::tools
