#pragma once

namespace CLI {
class App;
}

namespace zk::tools {

/// Adds the subcommand init, which begins a catalogue of one's own.
void addInitCommand(CLI::App& app);

}  // namespace zk::tools
