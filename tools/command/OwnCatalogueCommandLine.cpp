#include <ZKStrings/tools/adoption/Adoption.h>
#include <ZKStrings/tools/authoring/Initialisation.h>
#include <ZKStrings/tools/command/OwnCatalogueCommandLine.h>

#include <cstddef>
#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <unistd.h>

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

bool isForeignTable(const std::string& file) {
  return file.ends_with(".strings") || file.ends_with(".stringsdict");
}

void runAdoption(const std::string& root, const std::string& file) {
  const Adoption done = adopt(root, file);
  std::size_t left = 0;
  for (const Fault& remark : done.remarks) {
    left += remark.severity == Severity::note ? 0 : 1;
    fmt::print("{}\n", formatted(remark, isatty(STDOUT_FILENO) == 1));
  }
  fmt::print("Brought {} text{} along, in {}; left {} out.\n", done.entries, done.entries == 1 ? "" : "s",
             fmt::join(done.languages, ", "), left);
}

}  // namespace zk::tools
