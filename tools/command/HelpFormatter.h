#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace zk::tools {

/// Breaks the lines of --help at words, to fit the width of a terminal.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_description(const CLI::App* command) const override;
  std::string make_subcommand(const CLI::App* command) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
};

}  // namespace zk::tools
