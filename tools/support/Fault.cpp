#include <ZKStrings/platform/text/UnicodeText.h>
#include <ZKStrings/tools/support/Fault.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <fmt/color.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace zk::tools {

namespace {

struct Style {
  const char* name;
  fmt::terminal_color colour;
};

Style styleOf(Severity severity) {
  switch (severity) {
    case Severity::error:
      return {"error", fmt::terminal_color::red};
    case Severity::warning:
      return {"warning", fmt::terminal_color::magenta};
    case Severity::gap:
      return {"gap", fmt::terminal_color::blue};
    case Severity::note:
      break;
  }
  return {"note", fmt::terminal_color::cyan};
}

/// `text`, in which a file may be quoted, with its control characters as a table's escapes: none begins a line or
/// steers the terminal.
std::string withoutControls(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const CodePoint next = firstCodePoint(text);
    text.remove_prefix(next.bytes.size());
    const char32_t value = next.value.value_or(U' ');
    const bool isControl = value < 0x20 || (value >= 0x7F && value < 0xA0);
    result += isControl ? fmt::format("\\U{:04x}", std::uint32_t{value}) : std::string(next.bytes);
  }
  return result;
}

}  // namespace

const char* nameOf(Severity severity) {
  return styleOf(severity).name;
}

bool takesColours(std::FILE* stream) {
  const char* const refusal = std::getenv("NO_COLOR");
  return isatty(fileno(stream)) == 1 && (refusal == nullptr || *refusal == '\0');
}

std::string formatted(const Fault& fault, bool coloured) {
  const auto [name, colour] = styleOf(fault.severity);
  const auto in = [&](fmt::text_style wanted) { return coloured ? wanted : fmt::text_style(); };
  std::string line = fmt::format(in(fmt::emphasis::bold), "{}:{}:{}: ", withoutControls(fault.file),
                                 fault.line, fault.column);
  line += fmt::format(in(fmt::emphasis::bold | fmt::fg(colour)), "{}: ", name);
  line += withoutControls(fault.message);
  if (!fault.rule.empty()) line += fmt::format(in(fmt::emphasis::faint), " [{}]", fault.rule);
  return line;
}

std::string toJson(const Faults& faults) {
  using Json = nlohmann::ordered_json;
  std::vector<std::string> objects;
  for (const Fault& fault : faults) {
    const Json object = {{"file", fault.file},     {"line", fault.line},
                         {"column", fault.column}, {"severity", nameOf(fault.severity)},
                         {"rule", fault.rule},     {"message", fault.message}};
    // Messages quote texts, in which there may be bytes that are not UTF-8.
    objects.push_back(object.dump(-1, ' ', false, Json::error_handler_t::replace));
  }
  return objects.empty() ? "[]" : fmt::format("[\n  {}\n]", fmt::join(objects, ",\n  "));
}

}  // namespace zk::tools
