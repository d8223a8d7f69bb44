#include <ZKStrings/tools/check/Checker.h>
#include <ZKStrings/tools/reference/Reference.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

namespace {

constexpr std::pair<char, std::string_view> kEscapes[] = {{'\\', "\\e"},  {'-', "\\-"},   {'\'', "\\(aq"},
                                                          {'^', "\\(ha"}, {'~', "\\(ti"}, {'`', "\\(ga"}};

/// `text` as markup that shows it literally.
std::string markupOf(std::string_view text) {
  std::string markup = text.starts_with('.') ? "\\&" : "";
  for (const char character : text) {
    std::string_view spelled(&character, 1);
    for (const auto& [special, escape] : kEscapes) {
      if (character == special) spelled = escape;
    }
    markup += spelled;
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

std::vector<const CLI::Option*> argumentsOf(const CLI::App& command) {
  return command.get_options([](const CLI::Option* option) { return option->get_positional(); });
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
  for (const CLI::Option* const argument : argumentsOf(command))
    markup += item(italic(argument->get_name(true)), argument->get_description());
  for (const CLI::Option* const option : command.get_options()) {
    if (option->nonpositional() && (option != command.get_help_ptr() || command.get_parent() == nullptr))
      markup += item(headingOf(*option), option->get_description());
  }
  return markup;
}

std::string sectionOf(const CLI::App& command) {
  std::string usage = bold(command.get_name());
  for (const CLI::Option* const argument : argumentsOf(command)) {
    const std::string name =
        italic(argument->get_name(true)) + (argument->get_items_expected_max() > 1 ? " ..." : "");
    usage += argument->get_required() ? " " + name : " [" + name + "]";
  }
  return fmt::format(".SS {}\n{}.\n{}.PP\n{}\n", usage, markupOf(command.get_description()),
                     optionsOf(command), markupOf(command.get_footer()));
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
  page += ".SH RULES\nThe rules of\n.BR check :\n";
  for (const auto& [rule, severity, summary] : checkRules())
    page += item(fmt::format("{} ({})", bold(rule), nameOf(severity)), summary);
  page += ".SH EXIT STATUS\nThe exit status of each command is one of these:\n";
  page += item(bold("0"), "Success.");
  page += item(bold("1"), "The project or a given file has an error, or a file cannot be read or written.");
  page +=
      item(bold("2"),
           "The command line is wrong: an unknown command, option, key or language, or an unusable text.");
  return page;
}

}  // namespace zk::tools
