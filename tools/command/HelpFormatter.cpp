#include <ZKStrings/tools/command/HelpFormatter.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <string>

#include <fmt/format.h>

namespace zk::tools {

std::string HelpFormatter::make_description(const CLI::App* command) const {
  return wrapped(CLI::Formatter::make_description(command), kTerminalWidth);
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  return fmt::format("  {:<{}}{}\n", command->get_display_name(true), column_width_ - 2,
                     wrapped(command->get_description(), kTerminalWidth - column_width_, column_width_));
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return wrapped(CLI::Formatter::make_option_desc(option), kTerminalWidth - column_width_);
}

}  // namespace zk::tools
