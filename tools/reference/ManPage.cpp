#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/reference/ManPage.h>

#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

/// `text` so that the formatter shows it as it is.
std::string markupOf(std::string_view text) {
  std::string markup;
  if (text.starts_with('.') || text.starts_with('\'')) markup = "\\&";
  for (const char character : text) {
    switch (character) {
      case '\\':
        markup += "\\e";
        break;
      case '-':
        markup += "\\-";
        break;
      case '\'':
        markup += "\\(aq";
        break;
      case '^':
        markup += "\\(ha";
        break;
      case '~':
        markup += "\\(ti";
        break;
      case '`':
        markup += "\\(ga";
        break;
      default:
        markup += character;
    }
  }
  return markup;
}

std::string bold(std::string_view text) {
  return "\\fB" + markupOf(text) + "\\fR";
}

std::string italic(std::string_view text) {
  return "\\fI" + markupOf(text) + "\\fR";
}

/// One paragraph with its heading on the left.
std::string item(const std::string& heading, std::string_view text) {
  return fmt::format(".TP\n{}\n{}\n", heading, markupOf(text));
}

/// An argument as the synopsis shows it: optional, or any number of times.
std::string argumentOf(const CLI::Option& option) {
  const std::string name =
      italic(option.get_name(true)) + (option.get_items_expected_max() > 1 ? " ..." : "");
  return option.get_required() ? name : "[" + name + "]";
}

/// "--root DIR".
std::string headingOf(const CLI::Option& option) {
  std::string heading;
  const auto append = [&](const std::string& name) { heading += (heading.empty() ? "" : ", ") + bold(name); };
  for (const std::string& name : option.get_snames()) append("-" + name);
  for (const std::string& name : option.get_lnames()) append("--" + name);
  if (option.get_items_expected_max() == 0) return heading;
  const std::string type = option.get_type_name();
  return heading + " " + italic(type.substr(0, type.find(':')));
}

std::string optionsOf(const CLI::App& command) {
  std::string markup;
  const auto isArgument = [](const CLI::Option* option) { return option->get_positional(); };
  const auto isNamed = [](const CLI::Option* option) { return option->nonpositional(); };
  for (const CLI::Option* const argument : command.get_options(isArgument))
    markup += item(italic(argument->get_name(true)), argument->get_description());
  for (const CLI::Option* const option : command.get_options(isNamed)) {
    if (option != command.get_help_ptr() || command.get_parent() == nullptr)
      markup += item(headingOf(*option), option->get_description());
  }
  return markup;
}

std::string sectionOf(const CLI::App& command) {
  std::string usage = bold(command.get_name());
  const auto isArgument = [](const CLI::Option* option) { return option->get_positional(); };
  for (const CLI::Option* const argument : command.get_options(isArgument))
    usage += " " + argumentOf(*argument);
  std::string markup = fmt::format(".SS {}\n{}.\n", usage, markupOf(command.get_description()));
  markup += optionsOf(command);
  if (!command.get_footer().empty()) markup += ".PP\n" + markupOf(command.get_footer()) + "\n";
  return markup;
}

std::string rulesSection() {
  std::string markup = ".SH RULES\nWhat\n.B check\nlooks for:\n";
  for (const auto& [name, severity, summary] : checkRules())
    markup += item(fmt::format("{} ({})", bold(name), nameOf(severity)), summary);
  return markup;
}

}  // namespace

std::string manPageOf(const CLI::App& app) {
  const std::string& name = app.get_name();
  std::string page =
      fmt::format(".TH {} 1 \"\" \"{}\" \"User Commands\"\n", markupOf(name), markupOf(app.version()));
  page += fmt::format(".SH NAME\n{} \\- {}\n", markupOf(name), markupOf(app.get_description()));
  page += fmt::format(".SH SYNOPSIS\n{} [{} {}] {} [{} ...]\n", bold(name), bold("--root"), italic("DIR"),
                      italic("command"), italic("argument"));
  page += ".SH OPTIONS\n" + optionsOf(app);
  page += ".SH COMMANDS\n";
  for (const CLI::App* const command : app.get_subcommands({})) page += sectionOf(*command);
  page += rulesSection();
  page += ".SH EXIT STATUS\n";
  page += item(bold("0"), "All went well.");
  page += item(bold("1"), "The command failed, or check found what it fails on.");
  page += item(bold("2"), "The command line was wrong.");
  return page;
}

}  // namespace zk::tools
