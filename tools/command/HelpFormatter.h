#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace zk::tools {

/// Lays out what --help prints within the terminal's width, broken at words.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_description(const CLI::App* command) const override;
  std::string make_subcommand(const CLI::App* command) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
};

}  // namespace zk::tools
