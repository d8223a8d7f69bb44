#include <ZKStrings/tools/command/HelpFormatter.h>
#include <ZKStrings/tools/support/Characters.h>

#include <sstream>

namespace zk::tools {

std::string HelpFormatter::make_description(const CLI::App* command) const {
  return wrapped(CLI::Formatter::make_description(command), kTerminalWidth);
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  std::ostringstream out;
  const std::string description = wrapped(command->get_description(), kTerminalWidth - column_width_);
  CLI::detail::format_help(out, command->get_display_name(true), description, column_width_);
  return out.str();
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return wrapped(CLI::Formatter::make_option_desc(option), kTerminalWidth - column_width_);
}

}  // namespace zk::tools
