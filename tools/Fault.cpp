#include <ZKStrings/tools/Fault.h>

#include <algorithm>

#include <fmt/color.h>
#include <fmt/format.h>

namespace zk::tools {

namespace {

struct Style {
  const char* name;
  fmt::text_style style;
};

Style styleOf(Severity severity) {
  switch (severity) {
    case Severity::error:
      return {"error", fmt::emphasis::bold | fmt::fg(fmt::terminal_color::red)};
    case Severity::warning:
      return {"warning", fmt::emphasis::bold | fmt::fg(fmt::terminal_color::magenta)};
    case Severity::note:
      break;
  }
  return {"note", fmt::emphasis::bold | fmt::fg(fmt::terminal_color::cyan)};
}

bool isContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

Position positionOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto lines = static_cast<std::size_t>(std::ranges::count(before, '\n'));
  const std::string_view line = before.substr(before.rfind('\n') + 1);
  const auto continued = static_cast<std::size_t>(std::ranges::count_if(line, isContinuationByte));
  return {lines + 1, line.size() - continued + 1};
}

std::string formatted(const Fault& fault, bool coloured) {
  const auto [name, style] = styleOf(fault.severity);
  const auto in = [&](fmt::text_style wanted) { return coloured ? wanted : fmt::text_style(); };
  std::string line = fmt::format(in(fmt::emphasis::bold), "{}:{}:{}: ", fault.file, fault.line, fault.column);
  line += fmt::format(in(style), "{}: ", name);
  line += fault.message;
  if (!fault.rule.empty()) line += fmt::format(in(fmt::emphasis::faint), " [{}]", fault.rule);
  return line;
}

}  // namespace zk::tools
