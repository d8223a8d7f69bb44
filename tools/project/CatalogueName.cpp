#include <ZKStrings/tools/project/CatalogueName.h>
#include <ZKStrings/tools/project/Identifiers.h>
#include <ZKStrings/tools/support/Diagnostic.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Position.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

constexpr const char* kForm = R"(write {"name": "Texts", "namespace": "myapp"})";

bool isNamespace(std::string_view name) {
  for (std::size_t end = 0; end != name.npos;) {
    end = name.find("::");
    if (!isIdentifier(name.substr(0, end))) return false;
    if (end != name.npos) name.remove_prefix(end + 2);
  }
  return true;
}

}  // namespace

CatalogueName CatalogueName::read(const std::string& root) {
  std::error_code failure;
  const bool isThere = std::filesystem::exists(std::filesystem::path(root) / kFile, failure);
  return isThere || failure ? parse(readFile(root, kFile)) : CatalogueName{};
}

CatalogueName CatalogueName::parse(std::string_view json) {
  try {
    const auto object = nlohmann::json::parse(json);
    CatalogueName read{"", ""};
    for (const auto& [member, value] : object.items()) {
      if (!object.is_object() || !value.is_string() || (member != "name" && member != "namespace"))
        fail(kFile, fmt::format("the file is no object with two texts; {}", kForm));
      (member == "name" ? read.name : read.nameSpace) = value.get<std::string>();
    }
    if (const std::string fault = read.fault(); !fault.empty()) fail(kFile, fault);
    return read;
  } catch (const nlohmann::json::parse_error& fault) {
    const std::size_t at = std::min(std::max<std::size_t>(fault.byte, 1) - 1, json.size());
    fail(kFile, positionOf(json, at), fmt::format("the text is not JSON here; {}", kForm));
  } catch (const nlohmann::json::out_of_range&) {
    fail(kFile, fmt::format("the file is no object with two texts; {}", kForm));
  }
}

std::string CatalogueName::fault() const {
  if (isModule()) return fmt::format("the name {} is the module's own; choose another", kModule);
  if (!isIdentifier(name))
    return fmt::format("the name \"{}\" cannot name a class; use letters, digits and _, as in Texts", name);
  if (!nameSpace.empty() && !isNamespace(nameSpace))
    return fmt::format(
        "the namespace \"{}\" cannot name one; use letters, digits and _, as in myapp or myapp::texts",
        nameSpace);
  if (name == nameSpace)
    return fmt::format("the namespace is called \"{}\" like the class; change one", name);
  return "";
}

std::string CatalogueName::toJson() const {
  const nlohmann::json theirName = name;
  const nlohmann::json theirNamespace = nameSpace;
  return fmt::format("{{\"name\": {}, \"namespace\": {}}}\n", theirName.dump(), theirNamespace.dump());
}

}  // namespace zk::tools
