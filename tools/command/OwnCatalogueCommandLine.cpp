#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/command/Subcommands.h>

#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace zk::tools {

void addInitCommand(CLI::App& app) {
  struct Arguments {
    std::string directory;
    CatalogueName name{"", ""};
  };
  const auto arguments = std::make_shared<Arguments>();
  auto* const command = app.add_subcommand("init", "Begin a catalogue of one's own");
  command->add_option("directory", arguments->directory, "Its folder; made if need be")->required();
  command->add_option("--name", arguments->name.name, "The class of its accessors, such as Texts")
      ->required();
  command->add_option("--namespace", arguments->name.nameSpace,
                      "The namespace of that class; none otherwise");
  command->footer("Example: zkstrings init texts --name Texts --namespace myapp");
  command->callback([arguments] {
    initCatalogue(arguments->directory, arguments->name);
    fmt::print("Wrote {0}; {0}/README.md says how to go on.\n", arguments->directory);
  });
}

}  // namespace zk::tools
