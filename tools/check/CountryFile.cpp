#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/check/CountryRules.h>
#include <ZKStrings/tools/support/Files.h>
#include <ZKStrings/tools/support/Json.h>

#include <filesystem>
#include <system_error>
#include <utility>

namespace zk::tools {

bool CountryFile::isExpected(const std::string& root, bool isModule) {
  std::error_code failure;
  return isModule || std::filesystem::exists(std::filesystem::path(root) / kFile, failure);
}

CountryFile CountryFile::read(const std::string& root) {
  try {
    return parse(readFile(root, kFile));
  } catch (const CommandFailed& failed) {
    return {{}, Finding{{1, 1}, failed.diagnostics.front().message}};
  }
}

CountryFile CountryFile::parse(const std::string& bytes) {
  const auto failed = [](Position at, const std::string& message) {
    return CountryFile{{}, Finding{at, "the module offers no country: " + message}};
  };
  const std::optional<std::string> text = decodedText(bytes, UnmarkedText::mayBeUtf16Or32);
  if (!text) return failed({1, 1}, "the file is not text; save it as UTF-8");
  CountryFile file;
  std::vector<JsonValue> elements;
  try {
    elements = JsonValue::parse(*text, kFile).elements();
  } catch (const CommandFailed& failure) {
    const Diagnostic& error = failure.diagnostics.front();
    return failed({error.line, error.column}, error.message);
  }
  const std::optional<Value> content = parseJson(bytes);
  const auto* const list = content ? content->as<Value::List>() : nullptr;
  if (!list || list->size() != elements.size())
    return failed({1, 1}, "it cannot read the file; save it as UTF-8");
  if (list->empty()) return failed({1, 1}, "the list is empty; add the countries");
  for (std::size_t i = 0; i < list->size(); ++i) file.elements.push_back({elements[i].at(), (*list)[i]});
  return file;
}

}  // namespace zk::tools
