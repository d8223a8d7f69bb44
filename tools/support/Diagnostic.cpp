#include <ZKStrings/platform/system/File.h>
#include <ZKStrings/tools/support/Characters.h>
#include <ZKStrings/tools/support/Diagnostic.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/color.h>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace zk::tools {

namespace {

struct Style {
  const char* name;
  fmt::terminal_color colour;
};

/// In the order of `Severity`.
constexpr Style kStyles[] = {{"error", fmt::terminal_color::red},
                             {"warning", fmt::terminal_color::magenta},
                             {"gap", fmt::terminal_color::blue},
                             {"note", fmt::terminal_color::cyan}};

}  // namespace

Position PositionFinder::at(std::size_t offset) {
  for (; at_ < offset && at_ < text_.size(); ++at_) {
    if (text_[at_] == '\n') {
      position_ = {position_.line + 1, 1};
    } else if (!isContinuationByte(text_[at_])) {
      ++position_.column;
    }
  }
  return position_;
}

Position positionOf(std::string_view text, std::size_t offset) {
  return PositionFinder(text).at(offset);
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

const char* nameOf(Severity severity) {
  return kStyles[static_cast<std::size_t>(severity)].name;
}

std::string fromWorkingDirectory(const std::string& file, const std::string& root) {
  namespace fs = std::filesystem;
  std::error_code failure;
  const fs::path here = fs::current_path(failure);
  const fs::path path = (nativePath(root) / nativePath(file)).lexically_normal();
  const std::string near = path.lexically_proximate(here).generic_string();
  const std::string whole = path.generic_string();
  // A build runs the command in a folder that its user does not see.
  const bool isClear =
      !near.starts_with("..") || !here.lexically_relative(nativePath(root)).string().starts_with("..");
  return isClear && near.size() < whole.size() ? near : whole;
}

Diagnostics fromWorkingDirectory(Diagnostics diagnostics, const std::string& root) {
  for (Diagnostic& diagnostic : diagnostics) diagnostic.file = fromWorkingDirectory(diagnostic.file, root);
  return diagnostics;
}

std::string formatted(const Diagnostic& diagnostic, bool coloured) {
  const auto [name, colour] = kStyles[static_cast<std::size_t>(diagnostic.severity)];
  const auto in = [&](fmt::text_style wanted) { return coloured ? wanted : fmt::text_style(); };
  std::string line = fmt::format(in(fmt::emphasis::bold), "{}:{}:{}: ", withoutControls(diagnostic.file),
                                 diagnostic.line, diagnostic.column);
  line += fmt::format(in(fmt::emphasis::bold | fmt::fg(colour)), "{}: ", name);
  line += withoutControls(diagnostic.message);
  if (!diagnostic.rule.empty()) line += fmt::format(in(fmt::emphasis::faint), " [{}]", diagnostic.rule);
  return line;
}

std::string toJson(const Diagnostics& diagnostics) {
  using Json = nlohmann::ordered_json;
  std::vector<std::string> objects;
  for (const Diagnostic& diagnostic : diagnostics) {
    const Json object = {{"file", diagnostic.file},     {"line", diagnostic.line},
                         {"column", diagnostic.column}, {"severity", nameOf(diagnostic.severity)},
                         {"rule", diagnostic.rule},     {"message", diagnostic.message}};
    // Messages quote texts, in which there may be bytes that are not UTF-8.
    objects.push_back(object.dump(-1, ' ', false, Json::error_handler_t::replace));
  }
  return objects.empty() ? "[]" : fmt::format("[\n  {}\n]", fmt::join(objects, ",\n  "));
}

Diagnostics mergeConflictsIn(std::string_view text, const std::string& file) {
  Diagnostics conflicts;
  const std::vector<std::string_view> lines = linesOf(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!lines[i].starts_with("<<<<<<< ")) continue;
    conflicts.push_back({Severity::error, file, i + 1, 1, "",
                         "a merge conflict; keep the right lines and remove the lines with <<<<<<<, ======= "
                         "and >>>>>>>"});
  }
  return conflicts;
}

void fail(std::string file, Position at, std::string message) {
  throw CommandFailed{{{Severity::error, std::move(file), at.line, at.column, "", std::move(message)}}};
}

void fail(std::string file, std::string message) {
  fail(std::move(file), {1, 1}, std::move(message));
}

}  // namespace zk::tools
