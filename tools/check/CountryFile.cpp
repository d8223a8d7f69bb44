#include <ZKStrings/platform/formats/Json.h>
#include <ZKStrings/platform/formats/TextEncoding.h>
#include <ZKStrings/tools/check/CountryRules.h>
#include <ZKStrings/tools/project/CatalogueName.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

/// Where the elements of the array that `json` spells begin. The module's reader does not tell.
std::vector<std::size_t> elementOffsets(std::string_view json) {
  std::vector<std::size_t> offsets;
  std::size_t depth = 0;
  bool isInText = false;
  bool isElementDue = false;
  for (std::size_t at = 0; at < json.size(); ++at) {
    const char c = json[at];
    if (isInText) {
      if (c == '\\') ++at;
      isInText = c != '"';
      continue;
    }
    const bool isBlank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (depth == 1 && isElementDue && !isBlank && c != ']') {
      offsets.push_back(at);
      isElementDue = false;
    }
    isInText = c == '"';
    if (c == '[' || c == '{') isElementDue = depth++ == 0;
    if (c == ']' || c == '}') --depth;
    if (c == ',') isElementDue = depth == 1;
  }
  return offsets;
}

/// The byte at which `text` stops being JSON.
std::size_t firstIllFormed(std::string_view text) {
  try {
    [[maybe_unused]] const auto content = nlohmann::json::parse(text);
  } catch (const nlohmann::json::parse_error& fault) {
    return fault.byte == 0 ? 0 : std::min(fault.byte - 1, text.size());
  } catch (const nlohmann::json::exception&) {  // a number out of range, which the module takes
  }
  return 0;
}

}  // namespace

bool CountryFile::isExpected(const std::string& root) {
  namespace fs = std::filesystem;
  std::error_code failure;
  return fs::exists(fs::path(root) / kFile, failure) ||
         !fs::exists(fs::path(root) / CatalogueName::kFile, failure);
}

CountryFile CountryFile::read(const std::string& root) {
  try {
    return parse(readFile(root, kFile));
  } catch (const CommandFailed& failed) {
    return {{}, Finding{{1, 1}, failed.diagnostics.front().message}};
  }
}

CountryFile CountryFile::parse(const std::string& bytes) {
  const std::optional<std::string> text = decodedText(bytes, UnmarkedText::mayBeUtf16Or32);
  if (!text) return {{}, Finding{{1, 1}, "the bytes are no text; save the file as UTF-8"}};
  std::optional<Value> content = parseJson(bytes);
  if (!content) {
    return {{},
            Finding{positionOf(*text, firstIllFormed(*text)),
                    "the text is not JSON here; mend it, the module offers no country"}};
  }
  auto* const list = content->as<Value::List>();
  if (!list)
    return {{}, Finding{{1, 1}, "the file is no array, and the module offers no country; write [ ... ]"}};
  if (list->empty())
    return {{}, Finding{{1, 1}, "the list is empty, and the module offers no country; add the countries"}};
  CountryFile file;
  const std::vector<std::size_t> offsets = elementOffsets(*text);
  PositionTeller positions(*text);
  for (std::size_t i = 0; i < list->size(); ++i) {
    file.elements.push_back({positions.at(offsets.at(i)), std::move((*list)[i])});
  }
  return file;
}

}  // namespace zk::tools
