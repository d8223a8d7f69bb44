#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/authoring/AccessorGenerator.h>
#include <ZKStrings/tools/authoring/Uses.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Files.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace zk::tools {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kExtensions[] = {".cc",  ".cpp", ".cxx", ".h",   ".hh",
                                            ".hpp", ".hxx", ".inl", ".ipp", ".mm"};

struct Token {
  std::string_view text;  ///< an identifier, "::", or another character
  std::size_t line;
};

bool isNamePart(char character) {
  return character == '_' || isAsciiLetterOrDigit(character) || static_cast<unsigned char>(character) >= 0x80;
}

/// How many bytes at the beginning of `code` are a comment or a literal; 0 if it begins with something else.
std::size_t skippedSize(std::string_view code) {
  if (code.starts_with("//")) return std::min(code.find('\n'), code.size());
  if (code.starts_with("/*")) return std::min(code.find("*/", 2), code.size() - 2) + 2;
  if (code[0] != '"' && code[0] != '\'') return 0;
  std::size_t end = 1;
  while (end < code.size() && code[end] != code[0] && code[end] != '\n') end += code[end] == '\\' ? 2U : 1U;
  return std::min(end + 1, code.size());
}

/// The tokens of `code`: for "T::About()  // ..." they are T, ::, About, ( and ).
std::vector<Token> tokensOf(std::string_view code) {
  std::vector<Token> tokens;
  std::size_t line = 1;
  while (!code.empty()) {
    std::size_t size = skippedSize(code);
    const bool isSkipped = size > 0 || code[0] == ' ' || code[0] == '\n';
    if (size == 0 && isNamePart(code[0])) {
      // A single quote within a number separates its digits.
      while (size < code.size() && (isNamePart(code[size]) || (code[size] == '\'' && code[0] <= '9'))) ++size;
    }
    if (size == 0) size = code.starts_with("::") ? 2 : 1;
    if (!isSkipped) tokens.push_back({code.substr(0, size), line});
    line += static_cast<std::size_t>(
        std::count(code.begin(), code.begin() + static_cast<std::ptrdiff_t>(size), '\n'));
    code.remove_prefix(size);
  }
  return tokens;
}

/// Adds the aliases that `tokens` declare for one of `names`: in "using T = zk::ZKStrings;", T.
void addAliases(const std::vector<Token>& tokens, std::set<std::string>& names) {
  for (std::size_t i = 0; i + 3 < tokens.size(); ++i) {
    if (tokens[i].text != "using" || tokens[i + 2].text != "=") continue;
    std::size_t end = i + 3;
    while (end < tokens.size() && tokens[end].text != ";") ++end;
    if (names.contains(std::string(tokens[end - 1].text))) names.emplace(tokens[i + 1].text);
  }
}

/// The code of the source files in `directories`, by path.
std::map<std::string, std::string> sourceFilesIn(const std::vector<std::string>& directories) {
  std::map<std::string, std::string> files;
  for (const std::string& directory : directories) {
    std::error_code failure;
    fs::recursive_directory_iterator at(nativePath(directory), failure);
    if (failure)
      throw std::invalid_argument(fmt::format("the folder {} cannot be read; check its name", directory));
    for (const fs::recursive_directory_iterator end; !failure && at != end; at.increment(failure)) {
      const fs::path& path = at->path();
      if (path.filename().string().starts_with('.')) at.disable_recursion_pending();
      if (std::find(std::begin(kExtensions), std::end(kExtensions), path.extension()) ==
          std::end(kExtensions))
        continue;
      if (!at->is_regular_file(failure)) continue;
      std::string code = readFile("", path.generic_string());
      if (code.find(kGeneratedNotice) == std::string::npos)
        files.emplace(path.lexically_normal().generic_string(), std::move(code));
    }
  }
  if (files.empty())
    throw std::invalid_argument(
        fmt::format("no C++ source files in {}; check the folder", fmt::join(directories, ", ")));
  return files;
}

}  // namespace

Uses::Uses(const std::vector<std::string>& directories, const Catalogue& catalogue) {
  if (directories.empty()) return;
  const CatalogueName& name = catalogue.settings().name;
  std::map<std::string_view, std::string_view> keys;  // by accessor
  std::vector<std::string> accessors;
  accessors.reserve(catalogue.entries().size());
  for (const Entry& entry : catalogue.entries())
    keys.emplace(accessors.emplace_back(accessorOf(entry, name)), entry.key);

  const std::map<std::string, std::string> files = sourceFilesIn(directories);
  std::map<std::string_view, std::vector<Token>> tokensByPath;
  std::set<std::string> names = {name.name};
  for (const auto& [path, code] : files) addAliases(tokensByPath[path] = tokensOf(code), names);
  for (const auto& [path, tokens] : tokensByPath) {
    for (std::size_t i = 2; i < tokens.size(); ++i) {
      const auto [text, line] = tokens[i];
      if (tokens[i - 1].text != "::" || !names.contains(std::string(tokens[i - 2].text))) continue;
      const auto key = keys.find(text);
      if (key != keys.end()) places_[std::string(key->second)].push_back(fmt::format("{}:{}", path, line));
    }
  }
}

std::vector<std::string> Uses::of(const Entry& entry) const {
  const auto places = places_.find(entry.key);
  return places == places_.end() ? std::vector<std::string>() : places->second;
}

std::string Uses::noteOn(const Entry& entry) const {
  return of(entry).empty() ? "" : fmt::format("Used in {}.", fmt::join(of(entry), ", "));
}

}  // namespace zk::tools
