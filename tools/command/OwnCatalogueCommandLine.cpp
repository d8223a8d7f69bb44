#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/command/Subcommands.h>
#include <ZKStrings/tools/support/Terminal.h>

#include <filesystem>
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
  auto* const command = app.add_subcommand("init", "Create a new catalogue");
  command->add_option("directory", arguments->directory, "The catalogue's folder; created if needed")
      ->required();
  command->add_option("--name", arguments->name.name, "The class of its accessors, such as Texts")
      ->required();
  command->add_option("--namespace", arguments->name.nameSpace,
                      "The namespace of that class (default: none)");
  command->footer("Example: zkstrings init texts --name Texts --namespace myapp");
  command->callback([arguments] {
    initCatalogue(arguments->directory, arguments->name);
    const std::string& directory = arguments->directory;
    say("Wrote {}; {} explains the next steps.\n", directory,
        (std::filesystem::path(directory) / "README.md").string());
  });
}

}  // namespace zk::tools
