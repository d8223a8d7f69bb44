#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace zk::tools {

/// Adds the subcommand init, which begins a catalogue of one's own.
void addInitCommand(CLI::App& app);

/// Whether `file` is, by its ending, a table of another app.
[[nodiscard]] bool isForeignTable(const std::string& file);

/// Brings that app's texts into the project at `root`, and prints what has come and what has not.
void runAdoption(const std::string& root, const std::string& file);

}  // namespace zk::tools
